// A screen in use: keys and clicks in, rows in the database and messages out.
#include "screens/GridControl.h"
#include "tests/screens/FormFixture.h"
#include "ui/ValueList.h"

#include <QCheckBox>
#include <QPointer>

namespace norvane::screens
{
namespace
{

using test::ShownBox;
using test::takeFailure;

const ShownBox noMoreRecords{QStringLiteral("No More Records"), QStringLiteral("Searching..."),
                             BoxIcon::Exclamation};

class OptionFormTest : public test::FormFixture
{
protected:
    OptionFormTest()
    {
        m_shop.screen(
            "[Database]\ntable=GROUPS\nIndex1=groupno\nIndex2=byname\n"
            "[visiblekeys]\nShowAddrecord=YES\nShowpreviousrecord=YES\nShownextrecord=YES\n"
            "Showdeleterecord=YES\nShowprintrecord=YES\n"
            "[CrystalReport]\nCrystalReportFile=groups.rpt\nCrystalReportTitle=Groups\n"
            "[Field1]\nControlType=IntegerNumberControl\nY=100\nVisible=True\nDatafield=GROUPNO\nMaxvalue="
            "99\n"
            "[Field2]\nControlType=TextControl\nY=600\nVisible=True\nDatafield=DESCRIPTION\nMaxvalue=12\n"
            "[Field3]\nControlType=DecimalNumberControl\nY=1100\nVisible=True\nDatafield=PRICE\nMaxvalue=99."
            "99\n"
            "[Field4]\nControlType=ComboControl\nY=1600\nVisible=True\nDataField=LINK\nList=1;One,2;Two,3;"
            "Three\n"
            "[Field5]\nControlType=CheckControl\nY=2100\nVisible=True\nDatafield=TAX1\n"
            "[Field6]\nControlType=FindControl\nY=2600\nVisible=True\n"
            "[Field7]\nControlType=FindControl\nY=3100\nVisible=True\n"
            "[Field8]\nControlType=TextControl\nY=4000\n");
    }
    static QString name(const Form& form) { return text(form, "TextControl_1"); }
    [[nodiscard]] ShownBox takeBox()
    {
        EXPECT_EQ(m_boxes.shown.size(), 1U);
        ShownBox box = m_boxes.shown.empty() ? ShownBox{} : m_boxes.shown.back();
        m_boxes.shown.clear();
        return box;
    }
};

TEST_F(OptionFormTest, WhatTheUserTypesIsStoredOnSave)
{
    const Form form = open();
    type(form, "TextControl_1", "Ports");
    type(form, "DecimalNumberControl_1", "7,5");
    QTest::keyClick(control(form, "ComboControl_1"), Qt::Key_Up);
    QTest::keyClick(control(form, "CheckControl_1"), Qt::Key_Space);
    EXPECT_EQ(m_shop.rows("select DESCRIPTION from GROUPS where GROUPNO = 1").value(0),
              QStringLiteral("Wines"))
        << "nothing is stored before";
    press(form, "SaveRecord");
    EXPECT_EQ(m_shop.rows("select GROUPNO, DESCRIPTION, PRICE, LINK, TAX1 from GROUPS where GROUPNO = 1"),
              QStringList{QStringLiteral("1|Ports|7.5|2|False")});
    EXPECT_TRUE(m_boxes.shown.empty());
}

TEST_F(OptionFormTest, EnterPressesTheFocusedButtonAndNoOther)
{
    const Form form = open();
    type(form, "TextControl_1", "Ports");
    QTest::keyClick(control(form, "TextControl_1"), Qt::Key_Return);
    QTest::keyClick(control(form, "TextControl_1"), Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(m_shop.rows("select DESCRIPTION from GROUPS where GROUPNO = 1").value(0),
              QStringLiteral("Wines"));
    control(form, "SaveRecord")->setFocus();
    QTest::keyClick(control(form, "SaveRecord"), Qt::Key_Return);
    EXPECT_EQ(m_shop.rows("select DESCRIPTION from GROUPS where GROUPNO = 1").value(0),
              QStringLiteral("Ports"));
}

TEST_F(OptionFormTest, MovesLoseWhatWasTypedAndTellTheEnds)
{
    const Form form = open();
    type(form, "TextControl_1", "Ports");
    press(form, "NextRecord");
    EXPECT_EQ(name(form), QStringLiteral("Beers"));
    press(form, "PreviousRecord");
    EXPECT_EQ(name(form), QStringLiteral("Wines"));
    press(form, "PreviousRecord");
    EXPECT_EQ(takeBox(), noMoreRecords);
    EXPECT_EQ(name(form), QStringLiteral("Wines"));
    press(form, "NextRecord");
    press(form, "NextRecord");
    press(form, "NextRecord");
    EXPECT_EQ(takeBox(), noMoreRecords);
    EXPECT_EQ(name(form), QStringLiteral("Food"));
}

TEST_F(OptionFormTest, ANewRecordWithATakenKeyCanBeCorrected)
{
    const Form form = open();
    press(form, "AddRecord");
    EXPECT_EQ(name(form), QString());
    EXPECT_EQ(text(form, "DecimalNumberControl_1"), QStringLiteral("0.00"));
    EXPECT_FALSE(control<QCheckBox>(form, "CheckControl_1")->isChecked());
    type(form, "IntegerNumberControl_1", "2");
    type(form, "TextControl_1", "Spirits");
    press(form, "SaveRecord");
    EXPECT_EQ(takeBox(), (ShownBox{QStringLiteral("This item code already exists!\rPlease try again"),
                                   QStringLiteral("Data Error Code3022"), BoxIcon::Critical}));
    type(form, "IntegerNumberControl_1", "4");
    press(form, "SaveRecord");
    EXPECT_EQ(m_shop.rows("select GROUPNO, DESCRIPTION, LINK from GROUPS where GROUPNO > 3"),
              QStringList{QStringLiteral("4|Spirits|0")});
}

TEST_F(OptionFormTest, DeleteAsksFirst)
{
    const Form form = open();
    press(form, "NextRecord");
    press(form, "DeleteRecord");
    EXPECT_EQ(takeBox(), (ShownBox{QStringLiteral("Are You Sure?"), QStringLiteral("Delete Record"),
                                   BoxIcon::Critical}));
    EXPECT_EQ(name(form), QStringLiteral("Beers"));
    m_boxes.answers = {true};
    press(form, "DeleteRecord");
    EXPECT_EQ(name(form), QStringLiteral("Wines"));
    EXPECT_EQ(m_shop.rows("select DESCRIPTION from GROUPS order by GROUPNO"),
              (QStringList{QStringLiteral("Wines"), QStringLiteral("Food")}));
}

TEST_F(OptionFormTest, DeletingTheLastRecordFails)
{
    m_shop.execute("delete * from GROUPS where GROUPNO > 1");
    const Form form = open();
    m_boxes.answers = {true};
    press(form, "DeleteRecord");
    const auto failure = takeFailure();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 3021);
}

TEST_F(OptionFormTest, FindsByEachButtonsIndex)
{
    const Form form = open();
    find(form, "FindControl_2", "C");
    EXPECT_EQ(name(form), QStringLiteral("Food"));
    find(form, "FindControl_1", "1", Qt::Key_Escape);
    EXPECT_EQ(name(form), QStringLiteral("Food")) << "cancelled";
    press(form, "NextRecord");
    EXPECT_EQ(name(form), QStringLiteral("Wines")) << "still by name";
    find(form, "FindControl_1", "2");
    EXPECT_EQ(name(form), QStringLiteral("Beers"));
    EXPECT_EQ(m_shop.values.searchText, QStringLiteral("2"));
    find(form, "FindControl_1", "9");
    EXPECT_EQ(takeBox(),
              (ShownBox{QStringLiteral("No Record"), QStringLiteral("Search"), BoxIcon::Exclamation}));
    EXPECT_EQ(m_boxes.beeps, 1);
    EXPECT_EQ(name(form), QStringLiteral("Beers")) << "the controls keep what they show";
    find(form, "FindControl_1", "two");
    const auto failure = takeFailure();
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->number(), 3421);
}

TEST_F(OptionFormTest, ANumberAboveItsMaximumIsRejected)
{
    const Form form = open();
    for (const char* box : {"IntegerNumberControl_1", "DecimalNumberControl_1"}) {
        type(form, box, "100");
        EXPECT_EQ(takeBox(), (ShownBox{QStringLiteral("Maximum Value Exceeded"),
                                       QStringLiteral("Input Error"), BoxIcon::Exclamation}));
        EXPECT_EQ(text(form, box).toDouble(), 0);
        EXPECT_EQ(QApplication::focusWidget(), control(form, box));
    }
}

TEST_F(OptionFormTest, PrintRunsTheReportOnWhatIsStored)
{
    struct Reports : ReportRunner {
        ReportRequest last;
        void run(const ReportRequest& request) override { last = request; }
    } reports;
    const Form form = open(&reports);
    press(form, "PrintReport");
    EXPECT_EQ(reports.last.reportFile, m_shop.folder.path("GROUPS.RPT"));
    EXPECT_EQ(reports.last.title, QStringLiteral("GROUPS"));
    EXPECT_EQ(reports.last.database, m_shop.values.databasePath);
}

TEST_F(OptionFormTest, TwoScreensOnOneTableHoldTheirOwnPlaces)
{
    const Form first = open();
    const Form second = open();
    press(second, "NextRecord");
    EXPECT_EQ(name(first), QStringLiteral("Wines"));
    type(second, "TextControl_1", "Ales");
    press(second, "SaveRecord");
    press(first, "NextRecord");
    EXPECT_EQ(name(first), QStringLiteral("Ales"));
    m_boxes.answers = {true};
    press(second, "DeleteRecord");
    press(first, "NextRecord");
    EXPECT_EQ(name(first), QStringLiteral("Food"));
}

TEST_F(OptionFormTest, ExitDropsANewRecord)
{
    Form form = open();
    press(form, "AddRecord");
    press(form, "ExitForm");
    form.reset();
    EXPECT_EQ(m_shop.rows("select GROUPNO from GROUPS").size(), 3);
    EXPECT_TRUE(m_boxes.shown.empty());
}

TEST_F(OptionFormTest, GridCellsAreStoredAtOnceOrRejected)
{
    const Form form =
        open("[Database]\ntable=PLUDATA\nIndex1=plunumber\n"
             "[Field1]\nControlType=GridControl\nWidth=9000\nHeight=3000\nVisible=True\n"
             "SQLCriteria=select PLUNUMBER, DESCRIPTION, PRICE1 from PLUDATA order by PLUNUMBER\n"
             "Caption0=Number\nColwidth0=3000\nlocked0=True\nCaption1=Name\nVisible1=False\n"
             "Caption2=Price\nnumberFormat2=0.00\n");
    auto* const grid = control<GridControl>(form, "gridcontrol_0");
    EXPECT_EQ(grid->columnWidth(0), 200);
    EXPECT_TRUE(grid->isColumnHidden(1));
    const auto enter = [grid](int row, const char* keys) {
        grid->setFocus();
        grid->setCurrentIndex(grid->model()->index(row, 2));
        QTest::keyClicks(grid->viewport(), QString::fromLatin1(keys).left(1));
        auto* const editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
        ASSERT_NE(editor, nullptr);
        QTest::keyClicks(editor, QString::fromLatin1(keys).mid(1));
        QTest::keyClick(editor, Qt::Key_Return);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    enter(1, "3.9");
    EXPECT_EQ(m_shop.rows("select PRICE1 from PLUDATA order by PLUNUMBER"),
              (QStringList{QStringLiteral("2.5"), QStringLiteral("3.9")}));
    enter(0, "x1");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !m_boxes.shown.empty(); }));
    EXPECT_EQ(takeBox(), (ShownBox{QStringLiteral("Invalid Data Entry"), QStringLiteral("Operation Error"),
                                   BoxIcon::Exclamation}));
    EXPECT_TRUE(grid->isAncestorOf(QApplication::focusWidget()));
    auto* const editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(editor, nullptr);
    EXPECT_EQ(editor->text(), QString()) << "emptied for the next try";
    EXPECT_EQ(m_shop.rows("select PRICE1 from PLUDATA order by PLUNUMBER").value(0), QStringLiteral("2.5"));
}

} // namespace
} // namespace norvane::screens
