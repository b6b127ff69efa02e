// Cells of a grid: what is shown, what is stored, what is refused.
#include "screens/GridModel.h"

#include "tests/screens/ScreenFixture.h"

namespace norvane::screens
{
namespace
{

class GridModelTest : public testing::Test
{
protected:
    [[nodiscard]] std::unique_ptr<GridModel> grid(const char* sql, const QVector<GridColumn>& columns) const
    {
        return std::make_unique<GridModel>(std::make_shared<store::Database>(m_shop.values.databasePath),
                                           QString::fromLatin1(sql), columns);
    }

    test::ScreenFixture m_shop;
};

TEST_F(GridModelTest, ShowsFormatsAndStoresACellAtOnceOrRefusesIt)
{
    const auto model = grid("select PLUNUMBER, PRICE1, GROUPNO from PLUDATA order by PLUNUMBER",
                            {{QStringLiteral("Number"), {}, true, {}, true},
                             {QStringLiteral("Price"), {}, false, QStringLiteral("#,##0.00"), true}});
    EXPECT_EQ(model->headerData(1, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("Price"));
    EXPECT_EQ(model->headerData(2, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("GROUPNO"));
    EXPECT_EQ(model->index(0, 1).data(), QStringLiteral("2.50"));
    EXPECT_EQ(model->index(0, 1).data(Qt::EditRole), QStringLiteral("2.5"));
    EXPECT_FALSE(model->index(0, 0).flags().testFlag(Qt::ItemIsEditable));
    EXPECT_TRUE(model->index(0, 2).flags().testFlag(Qt::ItemIsEditable));

    EXPECT_TRUE(model->setData(model->index(0, 2), QString(), Qt::EditRole));
    EXPECT_FALSE(model->setData(model->index(1, 2), QStringLiteral("drinks"), Qt::EditRole));
    EXPECT_EQ(m_shop.rows("select PRICE1, GROUPNO from PLUDATA order by PLUNUMBER"),
              (QStringList{QStringLiteral("2.5|null"), QStringLiteral("2.5|1")}));
}

TEST_F(GridModelTest, ReadsALongTableAsTheUserScrolls)
{
    {
        store::Database database(m_shop.values.databasePath);
        const store::Transaction transaction(database);
        store::Recordset records = database.openTable(QStringLiteral("GROUPS"));
        for (int number = 4; number <= 500; ++number) {
            records.addNew();
            records.setValue(QStringLiteral("GROUPNO"), store::Value::whole(number));
            records.update();
        }
    }
    const auto model = grid("GROUPS", {});
    EXPECT_LT(model->rowCount(), 500);
    while (model->canFetchMore({}))
        model->fetchMore({});
    ASSERT_EQ(model->rowCount(), 500);
    EXPECT_EQ(model->index(499, 0).data(), QStringLiteral("500"));
    for (const int row : {2, 450, 300})
        EXPECT_TRUE(model->setData(model->index(row, 4), QString::number(row + 1000), Qt::EditRole)) << row;
    EXPECT_EQ(m_shop.rows("select GROUPNO from GROUPS where LINK = GROUPNO + 999 order by GROUPNO"),
              (QStringList{QStringLiteral("3"), QStringLiteral("301"), QStringLiteral("451")}));
}

TEST_F(GridModelTest, TakesNoMoreColumnsThanTheQueryHas)
{
    EXPECT_EQ(test::failureOf([&] { (void)grid("select GROUPNO from GROUPS", {{}, {}}); }), 5);
    EXPECT_EQ(grid("", {{QStringLiteral("Price"), {}, false, {}, true}})->rowCount(), 0);
    EXPECT_EQ(grid("select * from GROUPS where GROUPNO > 9", {})->rowCount(), 0);
}

} // namespace
} // namespace norvane::screens
