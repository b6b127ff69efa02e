// Rows of drop-down lists.
#include "screens/ComboRows.h"

#include <gtest/gtest.h>

namespace norvane::screens
{
namespace
{

using Rows = QVector<QStringList>;

TEST(ComboRowsTest, AListIsSplitAtItsCommas)
{
    EXPECT_EQ(rowsOfList(QStringLiteral("0;Off,1;On,2;Auto")).size(), 3);
    EXPECT_EQ(rowsOfList(QStringLiteral("0;Off")), (Rows{{QStringLiteral("0"), QStringLiteral("Off")}}));
    EXPECT_EQ(rowsOfList(QStringLiteral("0;Off,")).size(), 1) << "a closing comma makes no row";
    EXPECT_TRUE(rowsOfList({}).isEmpty());
}

} // namespace
} // namespace norvane::screens
