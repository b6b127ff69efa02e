// A screen in use: keys and clicks in, rows in the database and messages out.
#include "store/engine/CommitOnExit.h"
#include "tests/platform/FullDisk.h"
#include "tests/screens/OptionFormFixture.h"
#include "tests/store/Elsewhere.h"
#include "ui/ValueList.h"

namespace norvane::screens
{
namespace
{

using test::ShownBox;
using OptionFormTest = OptionFormFixture;

const ShownBox noMoreRecords{u"No More Records"_s, u"Searching..."_s, BoxIcon::Exclamation};
const ShownBox emptyTable{
    u"Run-time error '3021':\r\rThe table GROUPS is empty. Upload its file from the ECR first."_s,
    applicationTitle(), BoxIcon::Critical};

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
        const store::CommitOnExit work(other);
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

TEST_F(OptionFormTest, MovesReportTheFirstAndLastRecord)
{
    press(form, "NextRecord");
    press(form, "PreviousRecord");
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
        m_notice.clear();
        leaving == std::string_view("find") ? find3() : press(form, leaving);
        EXPECT_EQ(m_notice, lost) << leaving;
        EXPECT_FALSE(form->isWindowModified());
        execute("update GROUPS set PRICE = '7' where GROUPNO = 1");
        if (!form->isVisible())
            show(open());
        undo();
        EXPECT_EQ(name(), "Ports") << leaving;
        EXPECT_EQ(m_notice, "Changes to Options 1 are back. Press Save to store them");
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
    EXPECT_EQ(m_notice.find("Changes to Options 1 were not saved."), 0U) << "dropped by Show";
    execute("delete * from GROUPS where GROUPNO = 1");
    press(form, "NextRecord");
    undo();
    EXPECT_EQ(m_notice, "Changes to Options 1 cannot be brought back: the record was deleted");
    EXPECT_EQ(name(), "Beers");

    press(form, "AddRecord");
    type(form, "TextControl_1", "Spirits");
    type(form, "IntegerNumberControl_1", "7");
    press(form, "NextRecord");
    EXPECT_EQ(m_notice, "Changes to the new record were not saved. Press Ctrl+Z to get them back");
    type(form, "TextControl_1", "Snacks");
    control(form, "NextRecord")->setFocus();
    undo();
    EXPECT_EQ(name(), "Spirits");
    EXPECT_EQ(m_notice.find("Changes to Options 3 were not saved."), 0U) << m_notice;
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
    EXPECT_FALSE(test::takeFailure());

    execute("delete * from GROUPS");
    press(form, "NextRecord");
    EXPECT_EQ(takeBox(), emptyTable);
    execute("insert into GROUPS (GROUPNO, DESCRIPTION) values (1, 'Wines')");
    EXPECT_EQ(toldBy("SaveRecord"), "Nothing was stored: there is no record here. Press Add first");
    form->refresh();
    EXPECT_EQ(name(), "Wines");
}

TEST_F(OptionFormTest, AFailureClosesOnlyTheScreenThatItConcerns)
{
    const Form other = open();
    type(other, "TextControl_1", "Ports");
    for (const char* button : {"NextRecord", "DeleteRecord", "FindControl_1"}) {
        form = open();
        test::runElsewhere(m_values.databasePath, "alter table GROUPS rename to GONE");
        m_boxes.answers = {true};
        m_boxes.shown.clear();
        QLatin1String(button) == "FindControl_1"_L1 ? (void)find(form, button, "2") : press(form, button);
        EXPECT_TRUE(m_boxes.shown.back().text.startsWith(u"Run-time error '3061':"_s)) << button;
        EXPECT_FALSE(form->isVisible()) << button;
        EXPECT_TRUE(other->isVisible());
        EXPECT_EQ(text(other, "TextControl_1"), "Ports");
        test::runElsewhere(m_values.databasePath, "alter table GONE rename to GROUPS");
    }
    EXPECT_FALSE(test::takeFailure());
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
    EXPECT_FALSE(test::takeFailure());
}

} // namespace
} // namespace norvane::screens
