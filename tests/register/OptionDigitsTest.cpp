// Flags in option digits.
#include "register/OptionDigits.h"

#include <gtest/gtest.h>

namespace norvane
{
namespace
{

TEST(OptionDigitsTest, PositionThreeIsARowOfTheRegisterAndNoBit)
{
    for (int digit = 0; digit < 10; ++digit) {
        EXPECT_EQ(DigitFlagSet(digit, 3), digit == 3 || digit == 5 || digit == 7) << digit;
        EXPECT_EQ(DigitFlagSet(digit, 4), digit < 8 && (digit & 4) != 0) << digit;
    }
}

} // namespace
} // namespace norvane
