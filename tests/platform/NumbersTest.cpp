// Conversions between texts and numbers as settings, screens and text records rely on them.
#include "platform/Numbers.h"

#include "platform/RuntimeFailure.h"
#include "tests/platform/TestFolder.h"

namespace norvane
{
namespace
{

using test::failureOf;

TEST(Numbers, ALeadingNumberIsReadAsFarAsItGoes)
{
    const std::pair<const char16_t*, double> rows[] = {
        {u"", 0},        {u"x12", 0},      {u"12abc", 12}, {u" 1 5.2 5 ", 15.25},
        {u"\t7\n8", 78}, {u"-3.50", -3.5}, {u"+4", 4},     {u".5", 0.5},
        {u"5.", 5},      {u"1.2.3", 1.2},  {u"1,234", 1},  {u"12e+", 12},
        {u"1e3", 1000},  {u"25D-1x", 2.5}, {u"1e-999", 0}, {u"-.", 0},
        {u"\u0664", 0},  {u"inf", 0}};
    for (const auto& [text, number] : rows)
        EXPECT_DOUBLE_EQ(leadingNumber(text), number) << QString::fromUtf16(text).toStdString();
    EXPECT_EQ(failureOf([] { (void)leadingNumber(u"1e999"); }), 6);
}

TEST(Numbers, AWholeTextIsANumberOrATypeMismatch)
{
    EXPECT_EQ(toNumber(u" -.25e1\t"), -2.5);
    for (const auto* text : {u"", u" ", u"12abc", u"1 2", u"-", u".", u"1e", u"nan", u"0x10", u"1,5"}) {
        EXPECT_EQ(failureOf([text] { (void)toNumber(text); }), 13) << QString::fromUtf16(text).toStdString();
    }
}

TEST(Numbers, WholeNumbersRoundHalvesToEvenAndStayInRange)
{
    const std::pair<const char16_t*, int> rows[] = {{u"0.5", 0},
                                                    {u"1.5", 2},
                                                    {u"2.5", 2},
                                                    {u"-0.5", 0},
                                                    {u"-1.5", -2},
                                                    {u"2.51", 3},
                                                    {u"2147483647.4", 2147483647}};
    for (const auto& [text, whole] : rows)
        EXPECT_EQ(toWholeNumber(text), whole) << QString::fromUtf16(text).toStdString();
    EXPECT_EQ(toWholeNumber(u"32767.4", 16), 32767);
    EXPECT_EQ(toWholeNumber(u"-32768", 16), -32768);
    EXPECT_EQ(failureOf([] { (void)toWholeNumber(u"32767.5", 16); }), 6);
    EXPECT_EQ(failureOf([] { (void)toWholeNumber(u"2147483647.5"); }), 6);
    EXPECT_EQ(failureOf([] { (void)toWholeNumber(u"-2147483649"); }), 6);
}

TEST(Numbers, PatternsFormatInExactDecimal)
{
    constexpr const char16_t* rows[][3] = {
        // clang-format off
        {u"4", u"00", u"04"}, {u"123", u"00", u"123"}, {u"", u"00", u""}, {u"0.5", u"00", u"01"},
        {u"-2.5", u"00", u"-03"}, {u"-0.4", u"00", u"00"}, {u"99.5", u"00", u"100"},
        {u"12.345", u"0000.00", u"0012.35"}, {u"1.005", u"0.00", u"1.01"}, {u".5", u"0.00", u"0.50"},
        {u"1e2", u"0000", u"0100"}, {u"15e-3", u"0.00", u"0.02"},
        {u"123456789012345678901234", u"00", u"123456789012345678901234"},
        // clang-format on
    };
    for (const auto& [text, pattern, formatted] : rows)
        EXPECT_EQ(formatNumber(text, pattern), formatted) << QString::fromUtf16(text).toStdString();
    EXPECT_EQ(failureOf([] { (void)formatNumber(u"4x", u"00"); }), 13);
    EXPECT_EQ(failureOf([] { (void)formatNumber(u"  ", u"00"); }), 13);
}

} // namespace
} // namespace norvane
