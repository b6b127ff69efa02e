// How a screen file becomes a window, odd files included.
#include "screens/FieldPanel.h"
#include "screens/GridControl.h"
#include "tests/screens/ScreenFixture.h"
#include "ui/ValueList.h"

namespace norvane::screens
{
namespace
{

using test::failureOf;

const QByteArray groups = "[DATABASE]\nTable=GROUPS\nindex1=groupno\n";

using OptionFormBuildTest = test::ScreenFixture;

TEST_F(OptionFormBuildTest, PlacesControlsInPixelsAndNamesThemByElement)
{
    const Form form =
        open(groups + "[formname]\nNAME=Groups\nWidth=9000\nHeight=4500\n"
                      "[Field1]\nControlType=LabelControl\nDescription=Na&me\nX=150\nY=300\nWidth=1500\n"
                      "[Field2]\nControlType=TEXTcontrol\nX=1800\nY=300\nWidth=3000\nVisible=True\n"
                      "[Field3]\nControlType=TextControl\nX=1800\nY=750\n"
                      "[Field4]\nControlType=Slider\n"
                      "[Field5]\nControlType=LabelControl\nDescription=R && D\nX=150\nY=1200\nVisible=1\n"
                      "[Field6]\nControlType=\n[Field7]\nControlType=CheckControl\n");
    EXPECT_EQ(form->windowTitle(), u"Groups[*]"_s);
    EXPECT_EQ(form->size(), QSize(600, 300));
    EXPECT_EQ(control(form, "TextControl_1")->geometry().topLeft(), QPoint(120, 20));
    EXPECT_EQ(control(form, "TextControl_1")->width(), 200);
    EXPECT_FALSE(control(form, "TextControl_2")->isVisible()) << "hidden unless the file shows it";
    EXPECT_TRUE(control(form, "LabelControl_0")->isVisible()) << "the first label is in view";
    EXPECT_EQ(control(form, "TextControl_1")->accessibleName(), u"Name"_s);
    EXPECT_EQ(control<QLabel>(form, "LabelControl_0")->buddy(), control(form, "TextControl_1"));
    EXPECT_EQ(control<QLabel>(form, "LabelControl_1")->text(), u"R & D"_s) << "after an unknown type";
    EXPECT_EQ(form->findChild<QCheckBox*>(), nullptr) << "nothing is read after the gap";
}

TEST_F(OptionFormBuildTest, ThePanelEndsBelowTheLargestCountedValue)
{
    const std::pair<const char*, int> cases[] = {
        {"TextControl\nY=2990", 200},  {"FindControl\nY=2990", 200},
        {"ComboControl\nY=2990", 200}, {"CheckControl\nY=2990", 21},
        {"LabelControl\nY=2990", 21},  {"GridControl\nY=9000\nHeight=2990", 200}};
    for (const auto& [lowest, pixels] : cases) {
        const Form form = open(groups + "[Field1]\nControlType=IntegerNumberControl\nY=305\n" +
                               "[Field2]\nControlType=" + lowest + "\n");
        EXPECT_EQ(control<FieldPanel>(form, "CSPict1")->widget()->height(), pixels) << lowest;
    }
}

TEST_F(OptionFormBuildTest, ButtonsAreThoseOfTheFileAndTabEndsInThem)
{
    const Form form =
        open(groups +
             "[visiblekeys]\nShownextrecord=Yes\nShowAddrecord=\nShowpreviousrecord=1\nShowprintrecord=YES\n"
             "[Field1]\nControlType=TextControl\nVisible=True\nTabindex=2\n"
             "[Field2]\nControlType=CheckControl\nVisible=True\n"
             "[Field3]\nControlType=IntegerNumberControl\nVisible=True\nTabindex=1\nReadOnly=True\n");
    EXPECT_FALSE(control(form, "PrintReport")->isEnabled()) << "it has no report";
    EXPECT_EQ(QApplication::focusWidget(), control(form, "TextControl_1")) << "the first that takes an entry";
    control(form, "IntegerNumberControl_1")->setFocus();
    QStringList visited;
    for (int stop = 0; stop < 6; ++stop) {
        visited += QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(visited.join(u' '),
              u"IntegerNumberControl_1 TextControl_1 CheckControl_1 NextRecord SaveRecord ExitForm"_s);
    press(form, "ExitForm");
    EXPECT_FALSE(form->isVisible());
    EXPECT_FALSE(control(open(groups + "[visiblekeys]\nShowsaverecord=no\n"), "SaveRecord")->isVisible());
}

TEST_F(OptionFormBuildTest, ToolsAreInAMenuAndHaveTheirKeys)
{
    QStringList used;
    const auto opened = [&](const QByteArray& buttons) {
        screen(groups + "[visiblekeys]\n" + buttons);
        auto form = std::make_unique<OptionForm>(
            m_screenFilePath, m_values, m_boxes, nullptr, nullptr,
            ScreenTools{{u"Many"_s, u"&Many"_s, QKeySequence(u"Ctrl+T"_s), [&](auto&) {
                             used += u"many"_s;
                         }}});
        form->show();
        QApplication::setActiveWindow(form.get());
        return form;
    };
    EXPECT_EQ(opened("ShowNextrecord=NO\n")->findChild<QPushButton*>(u"MoreTools"_s), nullptr);
    const auto form = opened("ShowNextrecord=YES\n");
    QTest::keyClick(form.get(), Qt::Key_T, Qt::ControlModifier);
    auto* const menu = control<QPushButton>(form, "MoreTools")->menu();
    QTest::keyClick(menu, Qt::Key_M);
    EXPECT_EQ(used, (QStringList{u"many"_s, u"many"_s}));
}

TEST_F(OptionFormBuildTest, ControlsTakeTheirPropertiesFromTheFile)
{
    const QByteArray longText(300, 'x');
    const Form form =
        open(groups +
             "[Field1]\nControlType=TextControl\nVisible=True\nMaxvalue=5\nCharacters=numeric\n"
             "[Field2]\nControlType=CheckControl\nVisible=True\nEnabled=False\nDescription=&Tax\n"
             "[Field3]\nControlType=ComboControl\nVisible=True\nValuecol=1\nList=a;5,b;6,\n"
             "[Field4]\nControlType=ComboControl\nVisible=True\nDataField=LINK\nColumnwidth=450;1500\n"
             "SQLCriteria=select GROUPNO, DESCRIPTION from GROUPS order by GROUPNO\nList=8;Lost\n"
             "[Field5]\nControlType=LabelControl\nDescription=" +
             longText + "\n[Field6]\nControlType=ComboControl\nList=" + longText + "\n");
    type(form, "TextControl_1", "12a3456");
    EXPECT_EQ(text(form, "TextControl_1"), "12345");
    EXPECT_FALSE(control(form, "CheckControl_1")->isEnabled());
    EXPECT_EQ(control<QCheckBox>(form, "CheckControl_1")->text(), u"&Tax"_s);
    auto* const fixed = control<ui::ValueList>(form, "ComboControl_1");
    EXPECT_EQ(fixed->count(), 2) << "a closing comma makes no row";
    QTest::keyClick(fixed, Qt::Key_Down);
    EXPECT_EQ(fixed->value(), u"5"_s);
    EXPECT_EQ(control<ui::ValueList>(form, "ComboControl_2")->count(), 4);
    EXPECT_EQ(control<ui::ValueList>(form, "ComboControl_2")->currentText(), u"3  Food"_s);
    EXPECT_EQ(control<QLabel>(form, "LabelControl_0")->text().size(), 144);
    EXPECT_EQ(control<ui::ValueList>(form, "ComboControl_3")->itemText(0).size(), 255);
}

TEST_F(OptionFormBuildTest, AMissingTableIsReportedAndThenFails)
{
    const auto no = [this](const QString& what) {
        return test::ShownBox{u"No %1 defined in %2 file"_s.arg(what, m_screenFilePath),
                              u"Initialisation Error"_s, BoxIcon::Critical};
    };
    const std::pair<const char*, std::vector<test::ShownBox>> cases[] = {
        {"", {no(u"database table"_s), no(u"index"_s)}},
        {"[Database]\nIndex1=groupno\n", {no(u"database table"_s)}},
        {"[Database]\ntable=GROUPS\n", {no(u"index"_s)}}};
    for (const auto& [text, message] : cases) {
        EXPECT_EQ(failureOf([&, text = text] { open(text); }), 3265) << text;
        EXPECT_EQ(std::exchange(m_boxes.shown, {}), message) << text;
    }
}

const struct {
    QByteArray text; ///< of the only field, or the whole file
    int number;
    const char* named = "";
} faults[] = {{"[Database]\ntable=NOTABLE\nIndex1=groupno\n", 3265},
              {"[Database]\ntable=GROUPS\nIndex1=noindex\n", 3265},
              {"TextControl\nDatafield=NOFIELD", 3265},
              {"TextControl\nX=left", 13, "section [Field1], key X"},
              {"TextControl\nTabindex=1st", 13, "key Tabindex"},
              {"TextControl\nTabindex=40000", 6, "key Tabindex"},
              {"CheckControl\nEnabled=yes", 13, "key Enabled"},
              {"IntegerNumberControl\nMaxvalue=x", 13, "key Maxvalue"},
              {"IntegerNumberControl\nDatafield=LONGLINK", 13}, // it holds null
              {"ComboControl\nSQLCriteria=select a from b", 3061},
              {"ComboControl\nSQLCriteria=select GROUPNO from GROUPS", 3265},
              {"GridControl\nSQLCriteria=NOTABLE", 3061},
              {"GridControl\nCaption0=a\nlocked0=on", 13, "key locked0"},
              {"GridControl\nSQLCriteria=select GROUPNO from GROUPS\nCaption0=a\nCaption1=b", 5}};

TEST_F(OptionFormBuildTest, FaultsFailWithTheNameOfTheFileAndOfTheKey)
{
    for (const auto& [text, number, named] : faults) {
        const QString message = test::failureTextOf([&, text = text] {
            open(text.startsWith('[') ? text : groups + "[Field1]\nControlType=" + text + "\n");
        });
        for (const QString& part :
             {QString::number(number) + u' ', m_screenFilePath, QString::fromLatin1(named)})
            EXPECT_TRUE(message.contains(part)) << text.data() << message.toStdString();
    }
    EXPECT_TRUE(m_boxes.shown.empty());
    execute("delete * from GROUPS");
    const QString message = test::failureTextOf(
        [&] { open(groups + "[Field1]\nControlType=TextControl\nDatafield=DESCRIPTION\n"); });
    EXPECT_EQ(message, u"3021 The table GROUPS is empty. Upload its file from the ECR first."_s);
}

} // namespace
} // namespace norvane::screens
