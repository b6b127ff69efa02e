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
const QByteArray number = QByteArray("1005").rightJustified(18, '0');

/// Older Velmar with one register; newer Velmar and Dorvik with three.
class PriceChange : public testing::TestWithParam<std::pair<int, int>>
{
};

qsizetype placeOf(const QByteArray& plu, const QList<QByteArrayList>& records)
{
    const auto found = std::find_if(records.begin(), records.end(),
                                    [&plu](const auto& record) { return record.first() == plu; });
    return found - records.begin();
}

/// Finds a PLU on the screen, types a new first price and saves it.
void changePrice(Shop& shop, const char* find, const QString& price)
{
    QWidget& screen = shop.openForm("PLUMENU");
    Shop::find(screen, find);
    EXPECT_EQ(screen.findChild<QLineEdit*>(u"TextControl_1"_s)->text().toLatin1(), number);
    auto* const box = screen.findChild<QLineEdit*>(u"DecimalNumberControl_1"_s);
    box->selectAll();
    QTest::keyClicks(box, price);
    Shop::press(screen, "SaveRecord");
    Shop::press(screen, "ExitForm");
    EXPECT_EQ(shop.stored("select PRICE1 from PLUDATA where PLUNUMBER='" + number + "'"), price);
}

/// What the registers hold after a price change is the register's own record with the new price in it.
TEST_P(PriceChange, ReachesEveryRegister)
{
    const auto [model, registers] = GetParam();
    Shop shop(model, registers);
    EXPECT_TRUE(shop.upload({0, 1, 2, 14, 15}).isEmpty());
    EXPECT_EQ(QFile::exists(shop.values().customerPath + u"/71.dat"_s), model != 0)
        << "PLUs clear their points in a register, so the points follow them where there are any";
    const auto before = shop.recordsOf(1, pluFile);
    ASSERT_EQ(shop.rowsOf("PLUDATA"), before.size());
    const qsizetype place = placeOf(number, before);
    QByteArrayList expected = before.at(place);
    expected[firstPriceColumn] = "00123456";

    changePrice(shop, "1005", u"1234.56"_s);
    EXPECT_TRUE(shop.download({0}).isEmpty());
    EXPECT_TRUE(shop.boxes().shown.empty());
    EXPECT_FALSE(test::takeFailure().has_value());
    for (int machine = 1; machine <= registers; ++machine) {
        const auto after = shop.recordsOf(machine, pluFile);
        ASSERT_EQ(after.size(), before.size()) << "register " << machine;
        EXPECT_EQ(after.at(place), expected) << "register " << machine;
    }
}

INSTANTIATE_TEST_SUITE_P(Models, PriceChange,
                         testing::Values(std::pair(0, 1), std::pair(2, 3), std::pair(3, 3)));

} // namespace
} // namespace norvane
