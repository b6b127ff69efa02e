// Corrections of printers: worked out from what was measured, and kept.
#include "paper/PrinterCorrection.h"

#include "tests/platform/TestFolder.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::paper
{
namespace
{

TEST(PrinterCorrectionTest, CorrectsAPrinterInOneStepFromAnyCorrection)
{
    // This one prints 1.5 % too small and everything 1.7 mm too far right.
    const auto printed = [](const AxisCorrection& axis, double place) {
        return 0.985 * axis.stretch * (place + axis.offset.inMillimetres()) + 1.7;
    };
    for (const AxisCorrection& before : {AxisCorrection{}, AxisCorrection{millimetres(-4), 1.1}}) {
        const double start = printed(before, 50);
        const AxisCorrection after = improved(before, {millimetres(50), millimetres(100), millimetres(start),
                                                       millimetres(printed(before, 150) - start)});
        for (const double place : {0.0, 50.0, 290.0})
            EXPECT_NEAR(printed(after, place), place, 0.001);
    }
}

TEST(PrinterCorrectionTest, IsKeptForEachPrinterByItsName)
{
    const test::TestFolder folder;
    const PrinterCorrections corrections(folder.path("printers.ini"));
    const PrinterCorrection first{{millimetres(-1.5), 1.01}, {millimetres(2), 0.995}};
    const PrinterCorrection second{{largestOffset, smallestStretch}, {millimetres(-50), largestStretch}};
    EXPECT_TRUE(corrections.keep(u"Büro/2. Stock [A4]"_s, first));
    EXPECT_TRUE(corrections.keep(u"Büro"_s, second));
    EXPECT_EQ(corrections.of(u"Büro/2. Stock [A4]"_s), first);
    EXPECT_EQ(corrections.of(u"Büro"_s), second);
    EXPECT_EQ(corrections.of(u"Other"_s), PrinterCorrection());
    folder.write("printers.ini",
                 "[Bad]\nOffsetAcross=1000\nStretchAcross=0\nOffsetDown=none\nStretchDown=nan\n");
    EXPECT_EQ(corrections.of(u"Bad"_s), PrinterCorrection()) << "nonsense moves nothing off the paper";
    EXPECT_FALSE(PrinterCorrections(folder.path("printers.ini/x.ini")).keep(u"Büro"_s, first));
}

} // namespace
} // namespace norvane::paper
