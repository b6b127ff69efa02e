// The road of a price change: from a register into the database, over the screen, to every register.
#include "tests/road/Shop.h"
#include "tests/support/FormTest.h"

#include <QLineEdit>

namespace norvane
{
namespace
{

using test::Shop;

constexpr int pluFile = 67;
constexpr int firstPriceColumn = 12; ///< from 0
constexpr int pluBox = 0;
constexpr int pointsBox = 36;

struct RoadCase {
    const char* name;
    int model;
    int registers;
};

std::ostream& operator<<(std::ostream& out, const RoadCase& c)
{
    return out << c.name;
}

class PriceChange : public testing::TestWithParam<RoadCase>
{
protected:
    [[nodiscard]] bool hasSmartCards() const { return GetParam().model != 0; }

    Shop m_shop{GetParam().model, GetParam().registers};
};

/// What the three registers hold after a price change is the register's own record with the new price in it.
TEST_P(PriceChange, ReachesEveryRegister)
{
    EXPECT_TRUE(m_shop.upload({pluBox, 1, 2, 14, 15}).isEmpty());
    const auto before = m_shop.recordsOf(1, pluFile);
    ASSERT_FALSE(before.isEmpty());
    ASSERT_EQ(m_shop.rowsOf("PLUDATA"), before.size());
    QByteArrayList expected = m_shop.recordOf(1, pluFile, "1005");

    QWidget& screen = m_shop.openScreen("PLUMENU");
    m_shop.find(screen, "1005");
    auto* const number = qobject_cast<QLineEdit*>(&m_shop.control(screen, "PLUNUMBER"));
    ASSERT_NE(number, nullptr);
    EXPECT_EQ(number->text().toLatin1(), expected.first());
    m_shop.type(screen, "PRICE1", "1234.56");
    Shop::press(screen, "SaveRecord");
    EXPECT_EQ(m_shop.stored("PLUDATA", "PRICE1", number->text()), QStringLiteral("1234.56"));
    Shop::press(screen, "ExitForm");

    EXPECT_TRUE(m_shop.download({pluBox}).isEmpty());
    EXPECT_TRUE(m_shop.boxes().shown.empty());
    EXPECT_FALSE(test::takeFailure().has_value());
    expected[firstPriceColumn] = "00123456";
    for (int machine = 1; machine <= GetParam().registers; ++machine) {
        EXPECT_EQ(m_shop.recordOf(machine, pluFile, "1005"), expected) << "register " << machine;
        EXPECT_EQ(m_shop.recordsOf(machine, pluFile).size(), before.size());
    }
}

/// Each box by itself, there and back: all files of it move, and the customer keeps their binary copies.
TEST_P(PriceChange, EachBoxMovesByItself)
{
    for (int box = 0; box <= pointsBox; ++box) {
        SCOPED_TRACE(testing::Message() << "box " << box);
        EXPECT_TRUE(m_shop.upload({box}).isEmpty());
        EXPECT_TRUE(m_shop.download({box}).isEmpty());
        EXPECT_TRUE(m_shop.boxes().shown.empty());
        EXPECT_FALSE(test::takeFailure().has_value());
    }
    const auto kept = [this](int file) {
        return QFile::exists(m_shop.values().customerPath + QStringLiteral("/%1.dat").arg(file));
    };
    for (const int file : {1, 2, 18, 36, 52, 65, 67, 70, 83, 86}) {
        const bool ofSmartCards = file == 86;
        const bool isMemoryFile = file == 52;
        EXPECT_EQ(kept(file), !isMemoryFile && (!ofSmartCards || hasSmartCards())) << file;
    }
}

INSTANTIATE_TEST_SUITE_P(Models, PriceChange,
                         testing::Values(RoadCase{"older Velmar, one register", 0, 1},
                                         RoadCase{"newer Velmar, three registers", 2, 3},
                                         RoadCase{"Dorvik, three registers", 3, 3}));

} // namespace
} // namespace norvane
