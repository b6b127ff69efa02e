// Lengths told in one unit and read in another.
#include "paper/Length.h"

#include <gtest/gtest.h>

namespace norvane::paper
{
namespace
{

TEST(LengthTest, UnitsMeetExactly)
{
    EXPECT_EQ(twips(1440), millimetres(25.4));
    EXPECT_EQ(dots(300, 300), dots(600, 600));
    EXPECT_EQ(millimetres(0.1) + millimetres(0.2), millimetres(0.3));
    EXPECT_EQ(millimetres(11.66) - millimetres(13.66), millimetres(-2));
    EXPECT_LT(dots(8, 300), millimetres(0.68));
    EXPECT_GT(dots(8, 300), millimetres(0.67));
    EXPECT_DOUBLE_EQ(twips(567).inMillimetres(), 10.00125);
}

TEST(LengthTest, FifteenTwipsAreAPixelOfTheScreen)
{
    EXPECT_EQ(screenPixels(twips(1500)), 100);
    EXPECT_EQ(screenPixels(twips(1507)), 100);
    EXPECT_EQ(screenPixels(twips(1507.5)), 101) << "half a pixel goes up";
    EXPECT_EQ(screenPixels(twips(-1507.5)), -101);
}

} // namespace
} // namespace norvane::paper
