// New records like the shown one, and where the shown one is used: keys and clicks in, rows, boxes and what
// the controls show out.
#include "tests/screens/OptionFormFixture.h"

#include <QListWidget>

namespace norvane::screens
{
namespace
{

using test::ShownBox;

/// A screen of PLUs without a control for their group.
class AddLikeThisTest : public test::ScreenFixture
{
protected:
    AddLikeThisTest()
    {
        form = open("[Database]\ntable=PLUDATA\nIndex1=plunumber\n" + allButtons +
                    "[Field1]\nControlType=LabelControl\nDescription=PLU number\nVisible=True\n"
                    "[Field2]\nControlType=TextControl\nX=1800\nVisible=True\nDatafield=PLUNUMBER\n"
                    "[Field3]\nControlType=TextControl\nY=600\nVisible=True\nDatafield=DESCRIPTION\n"
                    "[Field4]\nControlType=DecimalNumberControl\nY=1200\nVisible=True\nDatafield=PRICE1\n");
        QObject::connect(form.get(), &OptionForm::noticeChanged, form.get(),
                         [this](const QString& text) { m_notice = text.toStdString(); });
    }
    void pressKey(Qt::Key key)
    {
        QApplication::setActiveWindow(form.get()); // a box leaves none on this platform
        QTest::keyClick(QApplication::focusWidget(), key, Qt::ControlModifier);
    }
    [[nodiscard]] std::string shown() const
    {
        return text(form, "TextControl_1") + '|' + text(form, "TextControl_2") + '|' +
               text(form, "DecimalNumberControl_1");
    }
    [[nodiscard]] bool isMarked(const char* box) const
    {
        return control<QLineEdit>(form, box)->placeholderText() == u"To be typed"_s;
    }
    [[nodiscard]] std::string plus() const
    {
        return rows("select PLUNUMBER, DESCRIPTION, PRICE1, GROUPNO from PLUDATA order by PLUNUMBER");
    }

    const std::string before = plus();
    Form form;
    std::string m_notice;
};

TEST_F(AddLikeThisTest, CopiesAllButNumberAndTextAndStoresNothingBeforeSave)
{
    execute("insert into PLUDATA values ('000000000000000006', 'Bitter', '4', 2)");
    const std::string three = plus();
    pressKey(Qt::Key_D);
    EXPECT_EQ(shown(), "7||2.50");
    EXPECT_EQ(m_notice, "A new record like PLU 5. Type its number and description, then press Save");
    auto* const number = control<QLineEdit>(form, "TextControl_1");
    EXPECT_EQ(QApplication::focusWidget(), number);
    EXPECT_EQ(number->selectedText(), u"7"_s);
    EXPECT_TRUE(isMarked("TextControl_1") && isMarked("TextControl_2"));
    EXPECT_EQ(plus(), three);
    QTest::keyClicks(number, u"123"_s);
    EXPECT_FALSE(isMarked("TextControl_1"));
    press(form, "SaveRecord");
    EXPECT_EQ(takeBox(), codeExists);
    type(form, "TextControl_1", "7");
    type(form, "TextControl_2", "Stout");
    press(form, "SaveRecord");
    EXPECT_EQ(rows("select DESCRIPTION, PRICE1, GROUPNO from PLUDATA where PLUNUMBER = "
                   "'000000000000000007'"),
              "Stout|2.5|9");
    pressKey(Qt::Key_D);
    press(form, "NextRecord");
    EXPECT_FALSE(isMarked("TextControl_2")) << "a stored record waits for nothing";
}

TEST_F(AddLikeThisTest, WhatWasTypedIsCopiedAndCanBeRestoredToBothRecords)
{
    type(form, "DecimalNumberControl_1", "3");
    pressKey(Qt::Key_D);
    EXPECT_EQ(shown(), "6||3.00");
    EXPECT_EQ(m_notice, "Changes to PLU 5 were not saved. Press Ctrl+Z to get them back");
    control(form, "SaveRecord")->setFocus();
    press(form, "NextRecord");
    EXPECT_EQ(m_notice, "Changes to the new record were not saved. Press Ctrl+Z to get them back");
    control(form, "SaveRecord")->setFocus();
    pressKey(Qt::Key_Z);
    EXPECT_EQ(shown(), "6||3.00");
    press(form, "SaveRecord");
    EXPECT_EQ(rows("select PRICE1, GROUPNO from PLUDATA where PLUNUMBER = '000000000000000006'"), "3|9");
    pressKey(Qt::Key_Z);
    EXPECT_EQ(shown(), "000000000000000005|Lager|3.00");
}

TEST_F(AddLikeThisTest, IsNotOfferedOnAScreenWithoutAddNorCopiesWhatNobodyMayEnter)
{
    form = open("[Database]\ntable=GROUPS\nIndex1=groupno\n[visiblekeys]\nShownextrecord=YES\n"
                "[Field1]\nControlType=IntegerNumberControl\nVisible=True\nDatafield=GROUPNO\n");
    pressKey(Qt::Key_D);
    EXPECT_EQ(form->findChild<QAction*>(u"AddLikeThis"_s), nullptr);
    EXPECT_FALSE(form->isWindowModified());
    form = open("[Database]\ntable=GROUPS\nIndex1=groupno\n" + allButtons +
                "[Field1]\nControlType=IntegerNumberControl\nVisible=True\nDatafield=GROUPNO\n"
                "[Field2]\nControlType=DecimalNumberControl\nVisible=True\nDatafield=RATE\nReadOnly=True\n"
                "[Field3]\nControlType=CheckControl\nVisible=True\nDatafield=TAX1\nEnabled=False\n");
    pressKey(Qt::Key_D);
    QTest::keyClicks(QApplication::focusWidget(), u"4"_s);
    press(form, "SaveRecord");
    EXPECT_EQ(rows("select RATE, TAX1, PRICE, LINK from GROUPS where GROUPNO = 4"), "null|False|12.34|3");
}

class RecordUsesTest : public OptionFormFixture
{
protected:
    RecordUsesTest() { execute("update PLUDATA set GROUPNO = 2"); }
    [[nodiscard]] bool says(const QString& caption) const
    {
        return test::soon([&] { return control<QPushButton>(form, "RecordUses")->text() == caption; });
    }
};

TEST_F(RecordUsesTest, AreCountedOnTheScreenAndListedByAKey)
{
    EXPECT_TRUE(says(u"Not Used Anywhere"_s));
    EXPECT_FALSE(control(form, "RecordUses")->isEnabled());
    press(form, "NextRecord");
    EXPECT_TRUE(says(u"Used in 2 Places..."_s));
    control(form, "TextControl_1")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_R, Qt::ControlModifier);
    auto* const list = control<QListWidget>(form, "UsesList");
    ASSERT_EQ(list->count(), 2);
    EXPECT_EQ(list->item(0)->text(), u"PLU 5 \"Lager\""_s);
    EXPECT_EQ(list->item(1)->text(), u"PLU 123 \"Claret\""_s);
    QTest::keyClick(list, Qt::Key_Escape);
    EXPECT_TRUE(test::soon([this] { return form->findChild<QListWidget*>(u"UsesList"_s) == nullptr; }));
    execute("update PLUDATA set GROUPNO = 9 where DESCRIPTION = 'Lager'");
    form->refresh();
    EXPECT_TRUE(says(u"Used in 1 Place..."_s));
    press(form, "AddRecord");
    EXPECT_TRUE(says(u"Not Used Anywhere"_s));
}

TEST_F(RecordUsesTest, DeleteAsksFirstAboutARecordThatIsUsed)
{
    const ShownBox specified{u"Are You Sure?"_s, u"Delete Record"_s, BoxIcon::Critical, BoxAnswer::No};
    press(form, "NextRecord");
    press(form, "DeleteRecord");
    EXPECT_EQ(takeBox(), (ShownBox{u"Options 2 is used in 2 places:\r\rPLU 5 \"Lager\"\rPLU 123 \"Claret\""
                                   "\r\rThey will be without it. Delete it?"_s,
                                   u"Please Check"_s, BoxIcon::Question, BoxAnswer::No}));
    m_boxes.answers = {true, false};
    press(form, "DeleteRecord");
    ASSERT_EQ(m_boxes.shown.size(), 2U);
    EXPECT_EQ(m_boxes.shown.back(), specified);
    EXPECT_EQ(groupNames(), "Wines Beers Food");
    for (int number = 1000; number < 1008; ++number) {
        execute("insert into PLUDATA values ('00000000000000" + QByteArray::number(number) +
                "', '', '1', 2)");
    }
    m_boxes.shown.clear();
    m_boxes.answers = {true, true};
    press(form, "DeleteRecord");
    EXPECT_TRUE(m_boxes.shown.front().text.contains(u"used in 10 places"_s));
    EXPECT_TRUE(m_boxes.shown.front().text.contains(u"PLU 1002\rand 5 more\r"_s));
    EXPECT_EQ(groupNames(), "Wines Food");
    m_boxes.shown.clear();
    press(form, "DeleteRecord");
    EXPECT_EQ(takeBox(), specified) << "nothing uses this one";
}

} // namespace
} // namespace norvane::screens
