// The find buttons of a screen: a text in, the record shown and the status bar's text out.
#include "tests/screens/OptionFormFixture.h"

namespace norvane::screens
{
namespace
{

using FindTest = OptionFormFixture;

const test::ShownBox noRecord{u"No Record"_s, u"Search"_s, BoxIcon::Exclamation};

TEST_F(FindTest, FindsByEachButtonsIndex)
{
    EXPECT_EQ(find(form, "FindControl_2", "C", {}, "ExitControl_0"),
              "Find the record with this text, or the next:");
    EXPECT_EQ(name(), "Food");
    EXPECT_EQ(find(form, "FindControl_1", "1", Qt::Key_Escape),
              "Find the record with this number, or the next:");
    find(form, "FindControl_1", "1", {}, "ExitControl_1");
    EXPECT_EQ(name(), "Food") << "cancelled";
    press(form, "NextRecord");
    EXPECT_EQ(name(), "Wines") << "still by name";
    find(form, "FindControl_1", "2");
    EXPECT_EQ(name(), "Beers");
}

TEST_F(FindTest, AfterNoRecordTheShownRecordIsStillTheOneThatIsSaved)
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
    EXPECT_EQ(m_boxes.beeps, 2);
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

TEST_F(FindTest, ASearchThatFindsAnotherRecordSaysSo)
{
    for (const auto& [button, sought, shown, expected] : searches) {
        find(form, button, sought);
        EXPECT_EQ(name(), shown) << sought;
        const std::string list = " The list (Ctrl+L) finds any part of a number or text.";
        EXPECT_EQ(m_notice, *expected == '\0' ? "" : expected + list) << sought;
    }
    EXPECT_TRUE(m_boxes.shown.empty());
}

TEST_F(FindTest, PluNumbersAreFilledToTheirWidth)
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
    EXPECT_EQ(find(form, "FindControl_2", "123"), "Find the record with this PLU number, or the next:")
        << "the first index stands in for the second";
    EXPECT_EQ(text(form, "TextControl_2"), "Claret");

    form = open(QByteArray(plus).replace("PluNumber\n", "PluNumber\nReadOnly=True\n"));
    control<QLineEdit>(form, "TextControl_1")->setText(u"8"_s);
    press(form, "SaveRecord");
    EXPECT_EQ(text(form, "TextControl_1"), "000000000000000008") << "filled also where it is not written";
}

} // namespace
} // namespace norvane::screens
