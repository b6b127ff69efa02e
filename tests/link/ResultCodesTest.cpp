// What the user reads for a result of the transfer tool.
#include "link/ResultCodes.h"

#include "tests/platform/TestFolder.h"

namespace norvane::link
{
namespace
{

TEST(ResultCodes, HaveTheirOwnWordsOrShowTheDialResult)
{
    EXPECT_EQ(resultText(1, 0), QStringLiteral("1. Bad Agrument Entry"));
    EXPECT_EQ(resultText(8, 0), QStringLiteral("8. Time Out"));
    EXPECT_EQ(resultText(13, 0), resultText(14, 0));
    EXPECT_EQ(resultText(100, 0), QStringLiteral("Modem Failure"));
    EXPECT_EQ(resultText(101, 0).count(QLatin1Char('\r')), 3);
    EXPECT_EQ(resultText(77, 0), QStringLiteral("Error 0 Sorry Error Unknown"));
    EXPECT_EQ(resultText(0, modemFailed), QStringLiteral("Error 100 Sorry Error Unknown"));
    EXPECT_EQ(resultText(-13, 0), QStringLiteral("Error 0 Sorry Error Unknown"));
    EXPECT_EQ(resultNumber(QString()), 0);
    EXPECT_EQ(resultNumber(QStringLiteral(" -14 ")), -14);
    EXPECT_EQ(test::failureOf([] { (void)resultNumber(QStringLiteral("PK\x03")); }), 13);
}

} // namespace
} // namespace norvane::link
