// A screen in use: keys and clicks in, rows in the database and messages out.
#include "tests/platform/FullDisk.h"
#include "tests/screens/ScreenFixture.h"
#include "tests/store/Elsewhere.h"
#include "ui/ValueList.h"

namespace norvane::screens
{
namespace
{

using test::ShownBox;

const ShownBox noMoreRecords{u"No More Records"_s, u"Searching..."_s, BoxIcon::Exclamation};
const ShownBox noRecord{u"No Record"_s, u"Search"_s, BoxIcon::Exclamation};
const ShownBox codeExists{u"This item code already exists!\rPlease try again"_s, u"Data Error Code3022"_s,
                          BoxIcon::Critical};

const ShownBox emptyTable{
    u"Run-time error '3021':\r\rThe table GROUPS is empty. Upload its file from the ECR first."_s,
    applicationTitle(), BoxIcon::Critical};

const QByteArray allButtons =
    "[visiblekeys]\nShowAddrecord=YES\nShowpreviousrecord=YES\nShownextrecord=YES\nShowdeleterecord=YES\n"
    "Showprintrecord=YES\n[CrystalReport]\nCrystalReportFile=groups.rpt\nCrystalReportTitle=Groups\n";

class OptionFormTest : public test::ScreenFixture
{
protected:
    OptionFormTest()
    {
        screen("[Database]\ntable=GROUPS\nIndex1=groupno\nIndex2=byname\n" + allButtons +
               "[Field1]\nControlType=IntegerNumberControl\nVisible=True\nDatafield=GROUPNO\nMaxvalue=99\n"
               "[Field2]\nControlType=TextControl\nY=600\nVisible=True\nDatafield=description\nMaxvalue=12\n"
               "[Field3]\nControlType=DecimalNumberControl\nY=1100\nVisible=True\nDatafield=PRICE\nMaxvalue="
               "99.99\n"
               "[Field4]\nControlType=ComboControl\nY=1600\nVisible=True\nDataField=LINK\nList=1;One,2;Two,3;"
               "Three\n"
               "[Field5]\nControlType=CheckControl\nY=2100\nVisible=True\nDatafield=TAX1\n"
               "[Field6]\nControlType=FindControl\nY=2600\nVisible=True\n"
               "[Field7]\nControlType=FindControl\nY=3100\nVisible=True\n"
               "[Field8]\nControlType=TextControl\nY=3600\nVisible=True\nDatafield=LONGLINK\n"
               "[Field9]\nControlType=CheckControl\nY=4100\nVisible=True\nDatafield=FLAG\n"
               "[Field10]\nControlType=DecimalNumberControl\nY=4600\nVisible=True\nDatafield=RATE\nReadOnly="
               "True\n");
        show(open());
    }
    void show(Form opened)
    {
        form = std::move(opened);
        QObject::connect(form.get(), &OptionForm::told, form.get(),
                         [this](const QString& text) { m_told = text.toStdString(); });
    }
    void undo()
    {
        QApplication::setActiveWindow(form.get()); // a dialog leaves none on this platform
        QWidget* const focus = QApplication::focusWidget();
        QTest::keyClick(focus ? focus : form.get(), Qt::Key_Z, Qt::ControlModifier);
    }
    [[nodiscard]] std::string name() const { return text(form, "TextControl_1"); }
    /// Presses a button. @return what the status bar says then.
    std::string toldBy(const char* button)
    {
        press(form, button);
        return m_told;
    }
    [[nodiscard]] std::string groupNames() const
    {
        return rows("select DESCRIPTION from GROUPS order by GROUPNO");
    }
    [[nodiscard]] std::string group(int number) const
    {
        const QByteArray sql =
            "select DESCRIPTION, PRICE, LINK, LONGLINK, TAX1, FLAG, RATE from GROUPS where GROUPNO = ";
        return rows(sql + QByteArray::number(number));
    }

    Form form;
    std::string m_told; ///< what the status bar says
};

TEST_F(OptionFormTest, WhatTheUserTypesIsStoredOnSave)
{
    EXPECT_FALSE(control<QCheckBox>(form, "CheckControl_2")->isChecked())
        << "a flag that holds 1 is not true";
    type(form, "TextControl_1", "Ports");
    type(form, "DecimalNumberControl_1", "7,5");
    type(form, "TextControl_2", "999999999999999999");
    QTest::keyClick(control(form, "ComboControl_1"), Qt::Key_Up);
    QTest::keyClick(control(form, "CheckControl_1"), Qt::Key_Space);
    QTest::keyClick(control(form, "TextControl_1"), Qt::Key_Return);
    QTest::keyClick(control(form, "TextControl_1"), Qt::Key_Escape);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(groupNames(), "Wines Beers Food") << "nothing is stored before";
    execute("update GROUPS set RATE = 9");
    control(form, "SaveRecord")->setFocus();
    QTest::keyClick(control(form, "SaveRecord"), Qt::Key_Return); // presses the button that has the focus
    EXPECT_EQ(group(1), "Ports|7.5|2|999999999999999999|False|0|9") << "read-only boxes store nothing";
    type(form, "TextControl_2", "");
    press(form, "SaveRecord");
    EXPECT_EQ(group(1), "Ports|7.5|2|null|False|0|9");
    EXPECT_TRUE(m_boxes.shown.empty());
}

TEST_F(OptionFormTest, NullIsShownEmptyAndAFailingSaveShowsNoBox)
{
    execute("update GROUPS set DESCRIPTION = null, PRICE = null, LINK = null, TAX1 = null where GROUPNO = 1");
    show(open());
    EXPECT_EQ(name(), "");
    EXPECT_EQ(text(form, "DecimalNumberControl_1"), "0.00");
    EXPECT_TRUE(control<ui::ValueList>(form, "ComboControl_1")->value().isNull());
    EXPECT_FALSE(control<QCheckBox>(form, "CheckControl_1")->isChecked());
    type(form, "TextControl_1", "Ports");
    control<ui::ValueList>(form, "ComboControl_1")->setValue(u"3000000000"_s);
    const std::string said = toldBy("SaveRecord");
    EXPECT_TRUE(m_boxes.shown.empty());
    EXPECT_EQ(group(1), "null|null|null|null|null|1|1.5");
    EXPECT_EQ(said.find("Nothing was stored: "), 0U) << said;
    EXPECT_NE(said.find("LINK"), std::string::npos) << said;
}

TEST_F(OptionFormTest, ASaveOnALockedFileOrAFullDiskSaysSoAndCanBeRepeated)
{
    type(form, "TextControl_1", "Ports");
    QElapsedTimer clock;
    {
        store::Database other(m_values.databasePath);
        const store::Transaction work(other);
        clock.start();
        EXPECT_EQ(toldBy("SaveRecord"), "Nothing was stored: another program holds the database");
        EXPECT_LT(clock.elapsed(), 2000) << "the usual wait is five seconds";
    }
    {
        const test::FullDisk disk(100);
        EXPECT_EQ(toldBy("SaveRecord").find("Nothing was stored: the disk"), 0U);
    }
    EXPECT_EQ(toldBy("SaveRecord"), "Saved Options 1");
    EXPECT_EQ(groupNames(), "Ports Beers Food");
    EXPECT_EQ(toldBy("NextRecord"), "") << "another record";
    EXPECT_TRUE(m_boxes.shown.empty());
}

TEST_F(OptionFormTest, MovesLoseWhatWasTypedAndTellTheEnds)
{
    type(form, "TextControl_1", "Ports");
    press(form, "NextRecord");
    EXPECT_EQ(name(), "Beers");
    press(form, "PreviousRecord");
    EXPECT_EQ(name(), "Wines");
    EXPECT_TRUE(m_boxes.shown.empty());
    press(form, "PreviousRecord");
    EXPECT_EQ(takeBox(), noMoreRecords);
    EXPECT_EQ(name(), "Wines");
    for (int time = 0; time < 3; ++time)
        press(form, "NextRecord");
    EXPECT_EQ(takeBox(), noMoreRecords);
    EXPECT_EQ(name(), "Food");
}

TEST_F(OptionFormTest, TypedChangesShowAStarAndComeBackAfterEachButtonThatDropsThem)
{
    type(form, "TextControl_1", "Ports");
    EXPECT_TRUE(form->isWindowModified());
    undo();
    undo();
    EXPECT_EQ(name(), "Wines") << "a box takes back the typing first";
    EXPECT_FALSE(form->isWindowModified());
    const std::string lost = "Changes to Options 1 were not saved. Press Ctrl+Z to get them back";
    const auto find3 = [&] {
        find(form, "FindControl_1", "3");
    };
    for (const char* leaving : {"NextRecord", "PreviousRecord", "AddRecord", "find", "ExitForm"}) {
        type(form, "TextControl_1", "Ports");
        QTest::keyClick(control(form, "CheckControl_1"), Qt::Key_Space);
        m_told.clear();
        leaving == std::string_view("find") ? find3() : press(form, leaving);
        EXPECT_EQ(m_told, lost) << leaving;
        EXPECT_FALSE(form->isWindowModified());
        execute("update GROUPS set PRICE = '7' where GROUPNO = 1");
        if (!form->isVisible())
            show(open());
        undo();
        EXPECT_EQ(name(), "Ports") << leaving;
        EXPECT_EQ(m_told, "Changes to Options 1 are back. Press Save to store them");
        EXPECT_TRUE(form->isWindowModified());
        EXPECT_EQ(group(1), "Wines|7|3|null|True|1|1.5") << "nothing is stored";
        press(form, "SaveRecord");
        EXPECT_EQ(group(1), "Ports|7|3|null|False|0|1.5") << "with what others stored meanwhile";
        EXPECT_FALSE(form->isWindowModified());
        execute("update GROUPS set DESCRIPTION = 'Wines', PRICE = '12.34', TAX1 = True, FLAG = 1 where "
                "GROUPNO = 1");
        form->refresh();
        m_boxes.shown.clear(); // "No More Records"
    }
    undo();
    EXPECT_EQ(name(), "Wines") << "each comes back once";
}

TEST_F(OptionFormTest, LostChangesMeetWhatHappenedToTheirRecordMeanwhile)
{
    type(form, "TextControl_1", "Ports");
    press(form, "NextRecord");
    execute("update GROUPS set DESCRIPTION = 'Sherry' where GROUPNO = 1");
    undo();
    press(form, "SaveRecord");
    EXPECT_EQ(takeBox().title, u"Record Changed"_s);
    EXPECT_EQ(name(), "Sherry");
    EXPECT_EQ(m_told.find("Changes to Options 1 were not saved."), 0U) << "dropped by Show";
    execute("delete * from GROUPS where GROUPNO = 1");
    press(form, "NextRecord");
    undo();
    EXPECT_EQ(m_told, "Changes to Options 1 cannot be brought back: the record was deleted");
    EXPECT_EQ(name(), "Beers");

    press(form, "AddRecord");
    type(form, "TextControl_1", "Spirits");
    type(form, "IntegerNumberControl_1", "7");
    press(form, "NextRecord");
    EXPECT_EQ(m_told, "Changes to the new record were not saved. Press Ctrl+Z to get them back");
    type(form, "TextControl_1", "Snacks");
    control(form, "NextRecord")->setFocus();
    undo();
    EXPECT_EQ(name(), "Spirits");
    EXPECT_EQ(m_told.find("Changes to Options 3 were not saved."), 0U) << m_told;
    press(form, "SaveRecord");
    EXPECT_EQ(groupNames(), "Beers Food Spirits");
    undo();
    EXPECT_EQ(name(), "Snacks");
}

TEST_F(OptionFormTest, ClosingTheWindowAsksWhatBecomesOfTypedChanges)
{
    const ShownBox question{u"Changes to Options 1 are not saved. [Save|Discard|Cancel]"_s,
                            u"Unsaved Changes"_s, BoxIcon::Exclamation};
    type(form, "TextControl_1", "Ports");
    form->close();
    EXPECT_EQ(takeBox(), question);
    EXPECT_TRUE(form->isVisible()) << "cancelled";
    m_boxes.unsavedAnswers = {UnsavedAnswer::Discard};
    form->close();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(groupNames(), "Wines Beers Food");
    show(open());
    type(form, "TextControl_1", "Ports");
    execute("update GROUPS set DESCRIPTION = 'Sherry' where GROUPNO = 1");
    m_boxes.unsavedAnswers = {UnsavedAnswer::Save, UnsavedAnswer::Save};
    form->close();
    EXPECT_TRUE(form->isVisible()) << "not saved, since another change was shown first";
    type(form, "TextControl_1", "Ports");
    form->close();
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(groupNames(), "Ports Beers Food");
}

TEST_F(OptionFormTest, ANewRecordWithATakenKeyCanBeCorrectedAndStaysTheOneThatIsShown)
{
    press(form, "AddRecord");
    EXPECT_EQ(name(), "");
    EXPECT_EQ(text(form, "DecimalNumberControl_1"), "0.00");
    EXPECT_FALSE(control<QCheckBox>(form, "CheckControl_1")->isChecked());
    type(form, "IntegerNumberControl_1", "2");
    type(form, "TextControl_1", "Spirits");
    press(form, "SaveRecord");
    EXPECT_EQ(takeBox(), codeExists);
    type(form, "IntegerNumberControl_1", "4");
    press(form, "SaveRecord");
    EXPECT_EQ(group(4), "Spirits|0|0|null|False|0|null");
    type(form, "IntegerNumberControl_1", "6");
    m_boxes.answers = {true, true};
    press(form, "SaveRecord");
    EXPECT_EQ(rows("select GROUPNO from GROUPS order by GROUPNO"), "1 2 3 6");
    press(form, "DeleteRecord");
    EXPECT_EQ(groupNames(), "Wines Beers Food");
}

TEST_F(OptionFormTest, AMoveADeletionAndAnExitDropANewRecord)
{
    m_boxes.answers = {true};
    for (const char* leaving : {"NextRecord", "DeleteRecord", "ExitForm"}) {
        press(form, "AddRecord");
        press(form, leaving);
    }
    form.reset();
    EXPECT_EQ(groupNames(), "Wines Beers Food");
}

TEST_F(OptionFormTest, DeleteAsksFirstAndAfterTheLastRecordAddStillWorks)
{
    press(form, "NextRecord");
    press(form, "DeleteRecord");
    EXPECT_EQ(takeBox(),
              (ShownBox{u"Are You Sure?"_s, u"Delete Record"_s, BoxIcon::Critical, BoxAnswer::No}));
    EXPECT_EQ(name(), "Beers");
    m_boxes.answers = {true, true, true};
    press(form, "DeleteRecord");
    EXPECT_EQ(name(), "Wines");
    EXPECT_EQ(groupNames(), "Wines Food");
    press(form, "DeleteRecord");
    m_boxes.shown.clear();
    EXPECT_EQ(toldBy("DeleteRecord"), "The table is empty. Press Add to enter a record.");
    EXPECT_EQ(m_boxes.shown.size(), 2U);
    EXPECT_EQ(m_boxes.shown.back(), emptyTable);
    EXPECT_EQ(name(), "");
    m_boxes.shown.clear();
    press(form, "NextRecord");
    EXPECT_EQ(takeBox(), emptyTable);
    type(form, "TextControl_1", "Spirits");
    EXPECT_EQ(toldBy("SaveRecord"), "Nothing was stored: there is no record here. Press Add first");
    press(form, "AddRecord");
    press(form, "PreviousRecord");
    EXPECT_EQ(takeBox(), emptyTable);
    press(form, "AddRecord");
    type(form, "IntegerNumberControl_1", "4");
    type(form, "TextControl_1", "Spirits");
    EXPECT_EQ(toldBy("SaveRecord"), "Saved Options 4");
    EXPECT_EQ(groupNames(), "Spirits");
    EXPECT_EQ(failureNumber(), 0);
}

TEST_F(OptionFormTest, AnEmptyScreenShowsWhatAnUploadBrings)
{
    execute("delete * from GROUPS");
    press(form, "NextRecord");
    EXPECT_EQ(takeBox(), emptyTable);
    execute("insert into GROUPS (GROUPNO, DESCRIPTION) values (1, 'Wines')");
    EXPECT_EQ(toldBy("SaveRecord"), "Nothing was stored: there is no record here. Press Add first");
    form->refresh();
    EXPECT_EQ(name(), "Wines");
}

/// What is done to the table before a button is pressed and undone afterwards, and the failure that closes
/// the screen.
constexpr auto hide = "alter table GROUPS rename to GONE";
constexpr auto bringBack = "alter table GONE rename to GROUPS";
constexpr std::tuple<const char*, const char*, const char*, const char*> closingFailures[] = {
    {hide, bringBack, "NextRecord", "Run-time error '3061':"},
    {hide, bringBack, "DeleteRecord", "Run-time error '3061':"},
    {hide, bringBack, "FindControl_1", "Run-time error '3061':"},
    {"update GROUPS set GROUPNO = null where GROUPNO = 2", "", "PreviousRecord", "Run-time error '13':"},
};

TEST_F(OptionFormTest, AFailureClosesTheScreenThatItConcernsAndNoOther)
{
    const Form other = open();
    type(other, "TextControl_1", "Ports");
    for (const auto& [change, undo, button, message] : closingFailures) {
        form = open();
        test::runElsewhere(m_values.databasePath, change);
        m_boxes.answers = {true};
        m_boxes.shown.clear();
        if (QLatin1String(button).startsWith("Find"_L1)) {
            find(form, button, "2");
        } else {
            press(form, button);
        }
        const std::string shown = m_boxes.shown.empty() ? "" : m_boxes.shown.back().text.toStdString();
        EXPECT_EQ(shown.find(message), 0U) << shown << button;
        EXPECT_FALSE(form->isVisible()) << change << button;
        EXPECT_TRUE(other->isVisible());
        EXPECT_EQ(text(other, "TextControl_1"), "Ports");
        test::runElsewhere(m_values.databasePath, undo);
    }
    EXPECT_EQ(failureNumber(), 0);
}

TEST_F(OptionFormTest, FindsByEachButtonsIndex)
{
    find(form, "FindControl_2", "C", {}, "ExitControl_0");
    EXPECT_EQ(name(), "Food");
    find(form, "FindControl_1", "1", Qt::Key_Escape);
    find(form, "FindControl_1", "1", {}, "ExitControl_1");
    EXPECT_EQ(name(), "Food") << "cancelled";
    press(form, "NextRecord");
    EXPECT_EQ(name(), "Wines") << "still by name";
    find(form, "FindControl_1", "2");
    EXPECT_EQ(name(), "Beers");
}

TEST_F(OptionFormTest, AfterNoRecordTheShownRecordIsStillTheOneThatIsSaved)
{
    press(form, "NextRecord");
    for (const char* missing : {"9", "two"}) {
        type(form, "TextControl_1", missing);
        find(form, "FindControl_1", missing);
        EXPECT_EQ(takeBox(), noRecord);
        EXPECT_EQ(name(), missing) << "what was typed";
        press(form, "SaveRecord");
        EXPECT_EQ(group(2).find(missing), 0U) << group(2);
    }
    EXPECT_EQ(m_boxes.heard, 2);
    find(form, "FindControl_2", "zz");
    EXPECT_EQ(takeBox(), noRecord);
    press(form, "NextRecord");
    EXPECT_EQ(name(), "Wines") << "by name from here on";

    press(form, "AddRecord");
    type(form, "IntegerNumberControl_1", "7");
    find(form, "FindControl_1", "7");
    EXPECT_EQ(takeBox(), noRecord);
    press(form, "SaveRecord");
    EXPECT_EQ(rows("select GROUPNO from GROUPS order by GROUPNO"), "1 2 3 7") << "still a new record";
}

/// What is sought, by which button; the record shown and what the status bar says.
constexpr std::tuple<const char*, const char*, const char*, const char*> searches[] = {
    {"FindControl_1", "2", "Beers", ""},
    {"FindControl_1", "", "Wines", ""},
    {"FindControl_1", "0", "Wines", "No Options 0. This is the next one."},
    {"FindControl_2", "fo", "Food", ""},
    {"FindControl_2", "Coffee", "Food", "No Options Coffee. This is the next one."},
};

TEST_F(OptionFormTest, ASearchThatLandsElsewhereSaysSo)
{
    QString said;
    QObject::connect(form.get(), &OptionForm::told, form.get(), [&](const QString& text) { said = text; });
    for (const auto& [button, sought, shown, expected] : searches) {
        find(form, button, sought);
        EXPECT_EQ(name(), shown) << sought;
        const QString list = u" The list (Ctrl+L) finds any part of a number or text."_s;
        EXPECT_EQ(said, *expected == '\0' ? QString() : QLatin1String(expected) + list) << sought;
    }
    EXPECT_TRUE(m_boxes.shown.empty());
}

TEST_F(OptionFormTest, TheFindDialogSaysWhatItsIndexTakes)
{
    const auto label = [this](const char* button) {
        QString text;
        QTimer::singleShot(0, [&] {
            text = QApplication::activeModalWidget()->findChild<QLabel*>()->text();
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
        });
        press(form, button);
        return text.toStdString();
    };
    const std::string rest = ", or the next:";
    EXPECT_EQ(label("FindControl_1"), "Find the record with this number" + rest);
    EXPECT_EQ(label("FindControl_2"), "Find the record with this text" + rest);
    const QByteArray plus = "[Database]\ntable=PLUDATA\nIndex1=plunumber\n[Field1]\nControlType="
                            "FindControl\nVisible=True\n";
    form = open(plus);
    EXPECT_EQ(label("FindControl_1"), "Find the record with this PLU number" + rest);
}

TEST_F(OptionFormTest, PluNumbersAreFilledToTheirWidth)
{
    const QByteArray plus = "[Database]\ntable=PLUDATA\nIndex1=plunumber\n" + allButtons +
                            "[Field1]\nControlType=TextControl\nVisible=True\nDatafield=PluNumber\n"
                            "[Field2]\nControlType=TextControl\nVisible=True\nDatafield=DESCRIPTION\n"
                            "[Field3]\nControlType=FindControl\nVisible=True\n"
                            "[Field4]\nControlType=FindControl\nVisible=True\nX=900\nY=900\n";
    form = open(plus);
    type(form, "TextControl_1", "123"); // of a stored record, taken by another
    press(form, "SaveRecord");
    EXPECT_EQ(takeBox(), codeExists);
    type(form, "TextControl_1", "99000000000000000004");
    m_boxes.answers = {true};
    press(form, "SaveRecord");
    EXPECT_EQ(text(form, "TextControl_1"), "000000000000000004");
    EXPECT_EQ(rows("select PLUNUMBER, DESCRIPTION from PLUDATA order by PLUNUMBER"),
              "000000000000000004|Lager 000000000000000123|Claret");
    find(form, "FindControl_2", "123"); // the first index stands in for the second
    EXPECT_EQ(text(form, "TextControl_2"), "Claret");

    form = open(QByteArray(plus).replace("PluNumber\n", "PluNumber\nReadOnly=True\n"));
    control<QLineEdit>(form, "TextControl_1")->setText(u"8"_s);
    press(form, "SaveRecord");
    EXPECT_EQ(text(form, "TextControl_1"), "000000000000000008") << "filled also where it is not written";
}

TEST_F(OptionFormTest, ANumberAboveItsMaximumIsRejected)
{
    for (const char* box : {"IntegerNumberControl_1", "DecimalNumberControl_1"}) {
        type(form, box, "100");
        EXPECT_EQ(takeBox(), (ShownBox{u"Maximum Value Exceeded"_s, u"Input Error"_s, BoxIcon::Exclamation}));
        EXPECT_EQ(std::stod(text(form, box)), 0);
        EXPECT_EQ(QApplication::focusWidget(), control(form, box));
    }
}

TEST_F(OptionFormTest, ARecordThatAnotherScreenReplacedIsNotOverwritten)
{
    const Form second = open();
    for (int time = 0; time < 2; ++time) {
        press(form, "NextRecord");
        press(second, "NextRecord");
    }
    m_boxes.answers = {true, true};
    press(second, "DeleteRecord");
    press(second, "AddRecord");
    type(second, "IntegerNumberControl_1", "4");
    type(second, "TextControl_1", "Spirits");
    press(second, "SaveRecord");
    type(form, "TextControl_1", "Snacks");
    EXPECT_EQ(toldBy("SaveRecord"), "Nothing was stored: the record was deleted meanwhile");
    EXPECT_EQ(groupNames(), "Wines Beers Spirits");
    EXPECT_EQ(name(), "Snacks") << "for the user to save elsewhere";
    press(form, "DeleteRecord");
    EXPECT_EQ(groupNames(), "Wines Beers Spirits");
    EXPECT_EQ(name(), "Wines");
    EXPECT_EQ(failureNumber(), 0);
}

} // namespace
} // namespace norvane::screens
