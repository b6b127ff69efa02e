// What a converted price is, to the last digit.
#include "utilities/PriceConversion.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::utilities
{
namespace
{

TEST(PriceConversionTest, APriceIsDividedCutAtTheFourthPlaceAndRoundedOnTheThird)
{
    struct Case {
        const char* price;
        const char* rate;
        const char* stored;
    };
    constexpr Case cases[] = {
        {"1.00", "0.68", " 1.47"},
        {"2.00", "0.68", " 2.94"},
        {"0.00", "0.68", " 0"},
        {"", "0.68", " 0"},
        {"abc", "0.68", " 0"},
        {" 1.5", "1", " 1.5"},
        {"0.68", "1", " 0.68"},
        {"3", "1", " 3"},
        {"7.5kg", "2.5", " 3"},
        // The fourth place is rounded before it is cut, so 1.2349 and half of the next rounds up twice.
        {"1.23495", "1", " 1.24"},
        {"1.23494", "1", " 1.23"},
        {"1.2349", "1", " 1.23"},
        {"1.235", "1", " 1.24"},
        {"9.9995", "1", " 10"},
        // Decimal, not binary: 1.005 is no 1.00499999999999989.
        {"1.005", "1", " 1.01"},
        {"2.675", "1", " 2.68"},
        {"0.615", "6", " 0.1"},
        // 15 significant digits, then the fourth place.
        {"1.23494999999999999", "1", " 1.24"},
        {"99999.99", "0.0001", " 999999900"},
        {"0.01", "123456789012", " 0"},
        // The third digit is taken off a negative price, which leads away from zero.
        {"-1.00", "0.68", "-1.47"},
        {"-1.234", "1", "-1.24"},
        {"-1.232", "1", "-1.23"},
        {"-0.68", "1", "-0.68"},
        {"-0.0004", "1", " 0"},
        {"1.00", "-0.68", "-1.47"},
    };
    for (const auto& [price, rate, stored] : cases)
        EXPECT_EQ(convertedPrice(price, Decimal::leading(rate)), stored) << price << " at " << rate;
}

TEST(PriceConversionTest, OnlyTheLeadingNumberOfARateCountsAndZeroIsNone)
{
    const std::pair<QString, const char*> rates[] = {
        {u"0.68"_s, "0.68"}, {u" 1.95583 DM"_s, "1.95583"}, {u"1,5"_s, "1"}, {u"-2"_s, "-2"},
        {u".5"_s, "0.5"},
    };
    for (const auto& [answer, rate] : rates)
        EXPECT_EQ(exchangeRate(answer).value_or(Decimal()).text(), rate);
    for (const auto& none : {u""_s, u"0"_s, u"0.00"_s, u"euro"_s, u",5"_s})
        EXPECT_FALSE(exchangeRate(none)) << none.toStdString();
}

} // namespace
} // namespace norvane::utilities
