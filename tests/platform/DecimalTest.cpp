// Exact decimals: texts, order, moved points, roundings, products and quotients, and binary numbers.
#include "platform/Decimal.h"

#include "platform/DecimalTotal.h"
#include "tests/platform/TestFolder.h"

#include <cstdlib>

namespace norvane
{
namespace
{

using test::failureOf;

TEST(Decimal, TextsComeBackPlain)
{
    const std::pair<const char*, const char*> rows[] = {
        // clang-format off
        {"-12.340", "-12.34"}, {" 5 ", "5"}, {"-0", "0"}, {"00012", "12"}, {".5", "0.5"}, {"1e3", "1000"},
        {"25E-4", "0.0025"}, {"100", "100"}, {"0.000", "0"}, {"5.", "5"}, {"999999999999999999", "999999999999999999"},
        {"0.000000000000000001", "0.000000000000000001"}, {"1.50000000000000000000000", "1.5"},
        // clang-format on
    };
    for (const auto& [text, plain] : rows) {
        const auto number = Decimal::parse(text);
        ASSERT_TRUE(number) << text;
        EXPECT_EQ(number->text(), plain) << text;
    }
    for (const char* text : {"", " ", "12abc", "1 2", ".", "1,5", "1.2.3"})
        EXPECT_FALSE(Decimal::parse(text)) << text;
}

constexpr struct {
    const char* number;
    int places;
    const char* text;
    const char* rounded; ///< to as many places first
} spelledNumbers[] = {{"12.3", 2, "12.30", "12.30"},
                      {"-0.5", 0, "-0.5", "-1"},
                      {"0", 3, "0.000", "0.000"},
                      {"1.50", 1, "1.5", "1.5"},
                      {"999999999999999999", 2, "999999999999999999.00", "999999999999999999.00"},
                      {"2.345", 2, "2.345", "2.35"},
                      {"-0.004", 2, "-0.004", "0.00"},
                      {"9.999", 2, "9.999", "10.00"}};

TEST(Decimal, IsSpelledWithAtLeastSoManyPlaces)
{
    for (const auto& row : spelledNumbers) {
        const auto number = *Decimal::parse(row.number);
        EXPECT_EQ(number.text(row.places), row.text);
        EXPECT_EQ(number.rounded(row.places).text(row.places), row.rounded);
    }
}

TEST(Decimal, OrderIsThatOfTheValues)
{
    const Decimal ascending[] = {{-999999999999999999, 0},
                                 {-1000001, 0},
                                 {-99999999, 2},
                                 {-10, 1},
                                 {-999999999999999999, 18},
                                 {-1, 400},
                                 {0, 5},
                                 {1, 400},
                                 {1, 18},
                                 {1, 1},
                                 {99999998, 2},
                                 {99999999, 2},
                                 {999999991, 3},
                                 {1, -6},
                                 {999999999999999999, 0}};
    for (std::size_t i = 0; i < std::size(ascending); ++i) {
        for (std::size_t j = 0; j < std::size(ascending); ++j)
            EXPECT_EQ(ascending[i] <=> ascending[j], i <=> j) << i << ' ' << j;
    }
    EXPECT_EQ(Decimal(150, 2), Decimal(15, 1));
    EXPECT_EQ(Decimal(0, 5), Decimal());
}

TEST(Decimal, TotalsLoseNoDigit)
{
    DecimalTotal total;
    EXPECT_EQ(total.text(), "0");
    for (int i = 0; i < 10; ++i)
        total.add(0.1);
    EXPECT_EQ(total.text(), "1");
    EXPECT_EQ(total.whole(), 1);
    total.add(-12.3456);
    EXPECT_EQ(total.text(), "-11.3456");
    EXPECT_FALSE(total.whole());
    total.add("12345678901234567890.0456");
    EXPECT_EQ(total.text(), "12345678901234567878.7");
    total.add(std::int64_t{-7});
    total.add("-12345678901234567878.7 each");
    EXPECT_EQ(total.text(), "12345678901234567871.7") << "not a number";
    total.add("-12345678901234567871.7");
    EXPECT_EQ(total.text(), "0");
    EXPECT_EQ(failureOf([&total] { total.add("1e400"); }), 6);
}

TEST(Decimal, DividesToAsManyDigitsAsAskedFor)
{
    const struct {
        const char* number;
        const char* divisor;
        int digits;
        const char* quotient;
    } rows[] = {{"1", "3", 5, "0.33333"},
                {"2", "3", 5, "0.66667"},
                {"-1", "8", 17, "-0.125"},
                {"5", "-2", 1, "-3"},
                {"0", "7", 5, "0"},
                {"0.01", "0.3", 3, "0.0333"},
                {"123456789012345678", "1", 5, "123460000000000000"}};
    for (const auto& [number, divisor, digits, quotient] : rows)
        EXPECT_EQ(Decimal::parse(number)->dividedBy(*Decimal::parse(divisor), digits).text(), quotient);
}

TEST(Decimal, ProductsLosePlacesOnlyBeyondEighteenDigits)
{
    const struct {
        const char* left;
        const char* right;
        const char* product;
    } rows[] = {{"1.5", "-2.25", "-3.375"},
                {"123456789012345678", "0", "0"},
                {"0.5", "0.333333333333333333", "0.166666666666666665"},
                {"123456789.12", "987654321.98", "121932631236092058"}};
    for (const auto& row : rows)
        EXPECT_EQ(Decimal::parse(row.left)->times(*Decimal::parse(row.right)).text(), row.product);
    EXPECT_EQ(failureOf([] { (void)Decimal(1'000'000'000, 0).times(Decimal(1'000'000'000, 0)); }), 6);
}

TEST(Decimal, MovesThePointAndRoundsHalvesAwayFromZero)
{
    const struct {
        const char* number;
        int shift;
        std::int64_t whole;
    } rows[] = {{"12.34", 2, 1234}, {"1.005", 2, 101}, {"-1.005", 2, -101}, {"0.285", 2, 29},
                {"1234", -2, 12},   {"1250", -2, 13},  {"-1250", -2, -13},  {"12", 3, 12000},
                {"0.4999", 0, 0},   {"5e-19", 0, 0},   {"0.5", 0, 1}};
    for (const auto& row : rows)
        EXPECT_EQ(Decimal::parse(row.number)->shifted(row.shift).toWhole(), row.whole) << row.number;
}

TEST(Decimal, PricesSurviveAConversionToTheNearestBinaryNumber)
{
    for (int cents = -200'000; cents <= 200'000; ++cents) {
        const double stored = Decimal(cents, 2).toDouble();
        ASSERT_EQ(stored, cents / 100.0) << cents;
        ASSERT_EQ(Decimal::fromDouble(stored).shifted(2).toWhole(), cents) << cents;
    }
    for (const char* text : {"0.1", "123456789012345678", "0.123456789012345678", "9007199254740993",
                             "1.7976931348623", "123456789.987654321"}) {
        EXPECT_EQ(Decimal::parse(text)->toDouble(), std::strtod(text, nullptr)) << text;
    }
    // At most eighteen digits are exact.
    EXPECT_EQ(failureOf([] { (void)Decimal::parse("1234567890123456789"); }), 6);
    for (const char* tooLong : {"1234567890123456789", "1e18", "-12345678901234567.89"})
        EXPECT_FALSE(Decimal::tryParse(tooLong)) << tooLong;
    EXPECT_EQ(Decimal::tryParse(" 0000000000000000000012.50 ")->text(), "12.5");
    EXPECT_EQ(Decimal::tryParse("1e17")->text(), "100000000000000000");
    EXPECT_EQ(Decimal::tryParse("0e99")->text(), "0");
    EXPECT_EQ(failureOf([] { (void)Decimal(123, 0).shifted(16); }), 6);
    EXPECT_EQ(failureOf([] { (void)Decimal::fromDouble(1e30); }), 6);
}

} // namespace
} // namespace norvane
