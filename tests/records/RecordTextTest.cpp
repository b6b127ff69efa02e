// The rules to the character on which every text record rests.
#include "records/RecordText.h"

#include "tests/platform/TestFolder.h"

#include <gtest/gtest.h>

namespace norvane::records
{
namespace
{

TEST(RecordTextTest, SplitsLinesAtEveryLineEndInUse)
{
    std::string_view text = "a\r\n\r\nb\nc\rd\r\n";
    std::string lines;
    while (!text.empty())
        lines.append(takeLine(text)).append("|");
    EXPECT_EQ(lines, "a||b|c|d|");
    EXPECT_EQ(withoutEndMark("a\r\n\x1A\r\nb"), "a\r\n");
}

TEST(RecordTextTest, SplitsColumnsAtCommasOnly)
{
    std::string_view line = "\"1,2\",,3";
    std::string columns;
    for (int i = 0; i < 6; ++i)
        columns.append(takeField(line)).append("|");
    EXPECT_EQ(columns, "\"1|2\"||3|||");
}

TEST(RecordTextTest, StripsZerosAsTheRegistersFilesNeedIt)
{
    const std::pair<const char*, const char*> cases[] = {
        {"0012", "12"},           {"0000", "0"},     {"", "0"},        {"  ", "  "},
        {" 12 ", " 12 "},         {" 0120 ", "120"}, {"00 12", " 12"}, {"0 012", "12"},
        {"007 Days  ", "7 Days"}, {"0  ", "0"},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(stripLeadingZero(text), expected) << '"' << text << '"';
        QString changed = QString::fromUtf8(text);
        EXPECT_EQ(StripLeadingZero(changed), QString::fromUtf8(expected)) << '"' << text << '"';
        EXPECT_EQ(changed, QString::fromUtf8(expected));
    }
}

TEST(RecordTextTest, BringsOptionsToTwoDigits)
{
    using Digits = std::array<int, 2>;
    EXPECT_EQ(optionDigits("45"), (Digits{4, 5}));
    EXPECT_EQ(optionDigits("4"), (Digits{0, 4}));
    EXPECT_EQ(optionDigits(""), (Digits{0, 0}));
    EXPECT_EQ(optionDigits(" 7"), (Digits{0, 7}));
    EXPECT_EQ(optionDigits("98"), (Digits{9, 8}));
    EXPECT_EQ(optionDigits("123"), (Digits{1, 2}));
    for (const char* const text : {"4x", "x", "  ", "-4", "\xFD\xFD"})
        EXPECT_EQ(norvane::test::failureOf([&] { (void)optionDigits(text); }), 13) << text;
}

TEST(RecordTextTest, FillsNumbersAndTexts)
{
    std::string out;
    appendZeroFilled(out, " 12 ", 4);
    appendZeroFilled(out, "123456", 4);
    appendZeroFilled(out, "", 3);
    EXPECT_EQ(out, "00123456000");
    out.clear();
    // One place for each character, whatever it takes in the database; "?" for what no register knows.
    appendBlankFilled(out, "  T\u00fcr \u20ac^\u4e2d ", 9);
    appendBlankFilled(out, "abcdef", 4);
    EXPECT_EQ(out, "T\xFCr \x80\xFD?  abcd");
    EXPECT_EQ(textFromRegister("T\xFCr \x80\xFD "), "T\u00fcr \u20ac^ ");
}

} // namespace
} // namespace norvane::records
