// The road of a price change: from a register into the database, over the screen, to every register.
#include "tests/road/Shop.h"
#include "tests/support/FormTest.h"

#include <QLineEdit>
#include <QTest>

#include <algorithm>

namespace norvane
{
namespace
{

using test::Shop;

constexpr int pluFile = 67;
constexpr int firstPriceColumn = 12; ///< from 0

/// Older Velmar with one register; newer Velmar and Dorvik with three.
class PriceChange : public testing::TestWithParam<std::pair<int, int>>
{
};

/// What the registers hold after a price change is the register's own record with the new price in it.
TEST_P(PriceChange, ReachesEveryRegister)
{
    const auto [model, registers] = GetParam();
    Shop shop(model, registers);
    EXPECT_TRUE(shop.upload({0, 1, 2, 14, 15}).isEmpty());
    EXPECT_EQ(QFile::exists(shop.values().customerPath + QStringLiteral("/71.dat")), model != 0)
        << "PLUs clear their points in a register, so the points follow them where there are any";
    const auto before = shop.recordsOf(1, pluFile);
    ASSERT_EQ(shop.rowsOf("PLUDATA"), before.size());
    const QByteArray number = QByteArray("1005").rightJustified(18, '0');
    const auto plu = std::find_if(before.begin(), before.end(),
                                  [&number](const auto& record) { return record.first() == number; });
    ASSERT_NE(plu, before.end());

    QWidget& screen = shop.openForm("PLUMENU");
    Shop::find(screen, "1005");
    EXPECT_EQ(screen.findChild<QLineEdit*>(QStringLiteral("TextControl_1"))->text().toLatin1(), number);
    auto* const price = screen.findChild<QLineEdit*>(QStringLiteral("DecimalNumberControl_1"));
    price->selectAll();
    QTest::keyClicks(price, QStringLiteral("1234.56"));
    Shop::press(screen, "SaveRecord");
    Shop::press(screen, "ExitForm");
    EXPECT_EQ(shop.stored("select PRICE1 from PLUDATA where PLUNUMBER='" + number + "'"),
              QStringLiteral("1234.56"));

    EXPECT_TRUE(shop.download({0}).isEmpty());
    EXPECT_TRUE(shop.boxes().shown.empty());
    EXPECT_FALSE(test::takeFailure().has_value());
    QByteArrayList expected = *plu;
    expected[firstPriceColumn] = "00123456";
    for (int machine = 1; machine <= registers; ++machine) {
        const auto after = shop.recordsOf(machine, pluFile);
        ASSERT_EQ(after.size(), before.size()) << "register " << machine;
        EXPECT_EQ(after[plu - before.begin()], expected) << "register " << machine;
    }
}

INSTANTIATE_TEST_SUITE_P(Models, PriceChange,
                         testing::Values(std::pair(0, 1), std::pair(2, 3), std::pair(3, 3)));

} // namespace
} // namespace norvane
