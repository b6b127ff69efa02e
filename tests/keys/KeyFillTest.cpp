// Which keys a fill takes, which items it leaves out, and which PLUs a group or the best sellers are.
#include "keys/layout/KeyFill.h"

#include "keys/layout/PluChoices.h"
#include "tests/keys/KeyShop.h"

namespace norvane::keys
{
namespace
{

using namespace Qt::Literals::StringLiterals;

/// An empty level of a Dorvik, but for PLU 3 on a key of the second row and an unknown function beside it.
class KeyFillTest : public testing::Test
{
protected:
    KeyFillTest()
    {
        shop.addKeyboard(keyboard.keysPerLevel, 1);
        shop.execute("update KEYLINK set KEYLINK = ''");
        for (int plu = 1; plu <= 9; ++plu) {
            shop.add("PLUDATA", {{"PLUNUMBER", test::text(QByteArray::number(plu).rightJustified(18, '0'))},
                                 {"DESCRIPTION", test::text("Article")},
                                 {"GROUPNO", test::whole(plu <= 4 ? 2 : 1)}});
        }
        level.read(1);
        level.setKey({1, 1}, *level.items().keyFor(ItemKind::Plu, u"3"_s));
        level.setKey({1, 2}, {u"999"_s, {}, u"Function Key"_s, KeyState::Missing});
    }

    /// "0,2=1 0,3=2", then what was left out.
    [[nodiscard]] std::string filled(const KeyCells& cells, const QString& plus, bool skipsUsed,
                                     bool skipsPlaced)
    {
        const FillPlan plan =
            planFill(level, {cells, ItemKind::Plu, plus.split(u' '), 0, skipsUsed, skipsPlaced});
        QStringList shown;
        for (const FilledKey& placed : plan.keys) {
            shown += u"%1,%2=%3"_s.arg(placed.cell.row)
                         .arg(placed.cell.column)
                         .arg(unfilledNumber(placed.key.lookUp));
        }
        return (shown.join(u' ') + u": "_s + planText(plan)).toStdString();
    }

    const KeyGeometry& keyboard = dorvikKeyboard();
    test::KeyShop shop{"3"};
    KeyLevel level{keyboard, shop.open()};
};

/// Clicked from the lower right to the upper left.
const KeyCells block{{1, 2}, {1, 1}, {1, 0}, {0, 2}, {0, 1}};

constexpr struct {
    const char* plus;
    bool skipsUsed;
    bool skipsPlaced;
    const char* outcome;
} fills[] = {
    {"1 2 4", true, true, "0,2=1 1,0=2: 2 keys. Left out: 1 without room."},
    {"1 2 4", false, true, "0,2=1 1,0=2 1,1=4: 3 keys, 1 of them in use."},
    {"1 2 4 5 6 7", false, false,
     "0,2=1 1,0=2 1,1=4 1,2=5: 4 keys, 2 of them in use. Left out: 2 without room."},
    {"3 1", true, true, "0,2=1: 1 key. Left out: 1 on other keys of this level."},
    {"3 1", true, false, "0,2=3 1,0=1: 2 keys."},
    // The key with PLU 3 is replaced, so that 3 needs another one.
    {"1 3 2", false, true, "0,2=1 1,0=3 1,1=2: 3 keys, 1 of them in use."},
    // Without 3 two keys are enough, and the one with 3 keeps it.
    {"3 1 2", false, false, "0,2=3 1,0=1 1,1=2: 3 keys, 1 of them in use."},
    {"77 1", true, true, "0,2=1: 1 key. Left out: 1 in no table."},
};

TEST_F(KeyFillTest, ABlockIsFilledInReadingOrderAndWhatIsLeftOutIsCounted)
{
    for (const auto& [plus, skipsUsed, skipsPlaced, outcome] : fills)
        EXPECT_EQ(filled(block, QLatin1StringView(plus), skipsUsed, skipsPlaced), outcome);
}

TEST_F(KeyFillTest, FromASingleKeyTheFillGoesOnToTheEndOfTheLevel)
{
    EXPECT_EQ(filled({{0, 15}}, u"1 2 4"_s, true, true), "0,15=1 1,0=2 1,3=4: 3 keys.");
    EXPECT_EQ(filled({{9, 14}}, u"1 2 4"_s, true, true), "9,14=1 9,15=2: 2 keys. Left out: 1 without room.");
    EXPECT_EQ(filled({{0, 0}}, u"1"_s, true, true), "0,2=1: 1 key.");
    const FillWish ofMany{{{9, 15}}, ItemKind::Plu, {u"1"_s, u"2"_s}, 99998, true, true};
    EXPECT_EQ(planText(planFill(level, ofMany)), u"1 key. Left out: 99999 without room."_s);
    EXPECT_EQ(keyAfter(keyboard, {9, 15}), std::nullopt);
}

TEST_F(KeyFillTest, AnItemThatKeepsItsKeyIsLeftOutHoweverFewKeysRemain)
{
    // With four items the key of 3 would be replaced, with three it is not.
    level.setKey({0, 3}, *level.items().keyFor(ItemKind::Plu, u"5"_s));
    EXPECT_EQ(filled(block, u"5 1 2"_s, false, true),
              "0,2=1 1,0=2: 2 keys. Left out: 1 on other keys of this level.");
    EXPECT_EQ(filled(block, u"5 1 3"_s, false, true),
              "0,2=1: 1 key. Left out: 2 on other keys of this level.");
}

TEST_F(KeyFillTest, GroupsBestSellersAndRangesArePlusInTheirOrder)
{
    shop.execute(
        "insert into GROUPS (GROUPNO, DESCRIPTION) values (1, 'Snacks  '), (2, 'Drinks'), (3, 'None')");
    const auto sell = [this](const char* plu, QDate day, int count) {
        shop.add("PLUSALES", {{"ID", test::text(QByteArray(plu).rightJustified(18, '0'))},
                              {"SALESDATE", store::Value::date(day)},
                              {"PROMO", test::whole(0)},
                              {"WASTE", test::whole(0)},
                              {"COUNT1", test::whole(1)},
                              {"COUNT5", test::whole(count)}});
    };
    sell("7", QDate(2026, 10, 31), 5);
    sell("2", QDate(2026, 10, 1), 8);
    sell("2", QDate(2026, 9, 30), 90);
    sell("4", QDate(2026, 11, 1), 90);
    sell("5", QDate(2026, 10, 2), 3);
    sell("5", QDate(2026, 10, 3), 3);
    const auto database = shop.open();
    QStringList shown;
    for (const PluChoice& choice : pluChoices(*database, QDate(2026, 11, 30))) {
        QStringList numbers;
        for (const QString& number : pluNumbers(*database, choice))
            numbers += unfilledNumber(number);
        shown += choice.name + u": "_s + numbers.join(u' ');
    }
    EXPECT_EQ(shown.join(u'|').toStdString(),
              "Best sellers of October 2026: 2 5 7|1 Snacks: 5 6 7 8 9|2 Drinks: 1 2 3 4|3 None: ");
    EXPECT_EQ(pluNumbers(*database, *pluRange(u" 8..12"_s)).size(), 2);
    EXPECT_FALSE(pluRange(u"7-11"_s) || pluRange(u"8..x"_s));
}

} // namespace
} // namespace norvane::keys
