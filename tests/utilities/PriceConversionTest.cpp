// What a converted price is, to the last digit.
#include "utilities/PriceConversion.h"

#include <gtest/gtest.h>

namespace norvane::utilities
{
namespace
{

/// Price, what the user types as rate, what is stored.
constexpr const char* cases[][3] = {
    {"1.00", "0.68", " 1.47"},
    {"", "0.68", " 0"},
    {"abc", "0.68", " 0"},
    {" 1.5", "1", " 1.5"},
    {"7.5kg", " 2.5 DM", " 3"},
    {"3", "1,5", " 3"},
    // The fourth place is rounded before it is cut, so a price can round up twice.
    {"1.23495", "1", " 1.24"},
    {"1.23494", "1", " 1.23"},
    {"9.9995", "1", " 10"},
    // Decimal, not binary: 1.005 is not 1.00499999999999989.
    {"1.005", "1", " 1.01"},
    // 15 significant digits, then the fourth place.
    {"1.23494999999999999", "1", " 1.24"},
    {"99999.99", "0.0001", " 999999900"},
    {"0.01", "123456789012", " 0"},
    // The third digit is taken off a negative price, which leads away from zero.
    {"-1.234", "1", "-1.24"},
    {"-1.232", "1", "-1.23"},
    {"-0.0004", "1", " 0"},
    {"1.00", "-0.68", "-1.47"},
};

TEST(PriceConversionTest, APriceIsDividedCutAfterFourPlacesAndRounded)
{
    for (const auto& [price, typed, stored] : cases) {
        const Decimal rate = exchangeRate(QString::fromUtf8(typed)).value();
        EXPECT_EQ(convertedPrice(price, rate), stored) << price << " at " << typed;
    }
}

} // namespace
} // namespace norvane::utilities
