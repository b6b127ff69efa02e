// What the user reads for a result of the transfer tool.
#include "link/ResultCodes.h"

#include "platform/RuntimeFailure.h"

#include <gtest/gtest.h>
#include <QStringList>

namespace norvane::link
{
namespace
{

TEST(ResultCodes, HaveTheirOwnWords)
{
    EXPECT_EQ(resultText(1, 0), QStringLiteral("1. Bad Agrument Entry"));
    EXPECT_EQ(resultText(8, 0), QStringLiteral("8. Time Out"));
    EXPECT_EQ(resultText(13, 0), resultText(14, 0));
    EXPECT_EQ(resultText(100, 0), QStringLiteral("Modem Failure"));
    EXPECT_EQ(resultText(101, 0).split(QLatin1Char('\r')).size(), 4);
}

TEST(ResultCodes, ShowTheDialResultWhereTheStatusHasNoWords)
{
    EXPECT_EQ(resultText(77, 0), QStringLiteral("Error 0 Sorry Error Unknown"));
    EXPECT_EQ(resultText(0, modemFailed), QStringLiteral("Error 100 Sorry Error Unknown"));
    EXPECT_EQ(resultText(-13, 0), QStringLiteral("Error 0 Sorry Error Unknown"));
}

TEST(ResultCodes, ReadAStatusValue)
{
    EXPECT_EQ(resultNumber(QString()), 0);
    EXPECT_EQ(resultNumber(QStringLiteral(" 0 ")), 0);
    EXPECT_EQ(resultNumber(QStringLiteral("-14")), -14);
    try {
        (void)resultNumber(QStringLiteral("PK\x03"));
        FAIL() << "no failure";
    } catch (const RuntimeFailure& failure) {
        EXPECT_EQ(failure.failure(), Failure::TypeMismatch);
        EXPECT_TRUE(failure.text().contains(QLatin1String("status.out")));
    }
}

} // namespace
} // namespace norvane::link
