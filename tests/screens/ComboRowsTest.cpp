// Rows of drop-down lists.
#include "screens/ComboRows.h"

#include "tests/screens/ScreenFixture.h"

namespace norvane::screens
{
namespace
{

using Rows = QVector<QStringList>;

TEST(ComboRowsTest, AQueryGivesItsFirstTwoColumnsBehindTheFixedRow)
{
    const test::ScreenFixture shop;
    store::Database database(shop.values.databasePath);
    const QStringList none{QStringLiteral("0"), QStringLiteral("Not used")};
    EXPECT_EQ(rowsOfQuery(database,
                          QStringLiteral(
                              "select GROUPNO, DESCRIPTION, RATE from GROUPS where GROUPNO < 3 order by 1")),
              (Rows{none,
                    {QStringLiteral("1"), QStringLiteral("Wines")},
                    {QStringLiteral("2"), QStringLiteral("Beers")}}));
    EXPECT_EQ(
        rowsOfQuery(database, QStringLiteral("select GROUPNO, DESCRIPTION from GROUPS where GROUPNO > 9")),
        Rows{none});
    EXPECT_EQ(
        test::failureOf([&] { (void)rowsOfQuery(database, QStringLiteral("select GROUPNO from GROUPS")); }),
        3265);
    EXPECT_EQ(
        test::failureOf([&] { (void)rowsOfQuery(database, QStringLiteral("select a, b from nothing")); }),
        3061);
}

TEST(ComboRowsTest, AListIsSplitAtItsCommas)
{
    EXPECT_EQ(rowsOfList(QStringLiteral("0;Off,1;On,2;Auto")).size(), 3);
    EXPECT_EQ(rowsOfList(QStringLiteral("0;Off")), (Rows{{QStringLiteral("0"), QStringLiteral("Off")}}));
    EXPECT_EQ(rowsOfList(QStringLiteral("0;Off,")).size(), 1) << "a closing comma makes no row";
    EXPECT_TRUE(rowsOfList({}).isEmpty());
}

} // namespace
} // namespace norvane::screens
