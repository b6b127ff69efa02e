// The places of the keys, and a level from its two tables to its cells and back, good rows and bad ones.
#include "keys/layout/KeyLevel.h"

#include "tests/keys/KeyShop.h"

namespace norvane::keys
{
namespace
{

using namespace Qt::Literals::StringLiterals;
using test::KeyShop;

struct KeyOfCell {
    const KeyGeometry& keyboard;
    KeyCell cell;
    std::optional<int> key;
};
const KeyOfCell keysOfCells[] = {
    {velmarKeyboard(), {12, 0}, 1},   {velmarKeyboard(), {0, 0}, 13},  {velmarKeyboard(), {12, 1}, 14},
    {velmarKeyboard(), {0, 12}, 169}, {velmarKeyboard(), {13, 0}, {}}, {dorvikKeyboard(), {9, 0}, 1},
    {dorvikKeyboard(), {1, 0}, 9},    {dorvikKeyboard(), {0, 0}, {}},  {dorvikKeyboard(), {9, 1}, 10},
    {dorvikKeyboard(), {0, 1}, {}},   {dorvikKeyboard(), {9, 2}, 19},  {dorvikKeyboard(), {0, 2}, 28},
    {dorvikKeyboard(), {0, 15}, 158}, {dorvikKeyboard(), {0, 16}, {}},
};

TEST(KeyGeometry, CountsKeysUpTheColumnsAndSkipsFixedCells)
{
    for (const auto& [keyboard, cell, key] : keysOfCells)
        EXPECT_EQ(keyboard.keyNumber(cell), key) << cell.row << ' ' << cell.column;
    for (const double model : {0.0, 1.0, 2.0, 3.0, -1.0, 1.5}) {
        const KeyGeometry& keyboard = keyboardOf(modelOfNumber(QString::number(model)).family);
        const std::vector<KeyCell> walk = keyboard.walk();
        ASSERT_EQ(walk.size(), model == 0 || model == 1 || model == 2 ? 169U : 158U);
        for (std::size_t key = 0; key < walk.size(); ++key)
            EXPECT_EQ(keyboard.keyNumber(walk[key]), static_cast<int>(key) + 1);
    }
}

constexpr int shownLevel = 2;

/// A Dorvik with a few items.
class LevelShop : public KeyShop
{
public:
    LevelShop() : KeyShop("3")
    {
        addKeyboard(keyboard.keysPerLevel);
        addItems();
        execute("insert into PLUDATA (PLUNUMBER, DESCRIPTION) values ('123456789012345678', 'Malt')");
        execute("insert into WLU (WLUno, DESCRIPTION) values (12, 'Breakfast')");
    }

    /// Puts both values, SQL texts, into the row of a key of the shown level.
    void put(int key, const std::string& link, const std::string& number) const
    {
        const std::string id = std::to_string(keyboard.rowsAhead(shownLevel) + key);
        execute(("update keylink set keylink = " + link + " where id = " + id).c_str());
        execute(("update nlu set nlu = " + number + " where id = " + id).c_str());
    }
    [[nodiscard]] std::string stored(const char* table, int key) const
    {
        const auto all = QString::fromStdString(column(table, table)).split(u'|');
        return all.at(keyboard.rowsAhead(shownLevel) + key - 1).toStdString();
    }
    [[nodiscard]] KeyCell cellOf(int key) const
    {
        return keyboard.walk().at(static_cast<std::size_t>(key) - 1);
    }

    const KeyGeometry& keyboard = dorvikKeyboard();
};

struct StoredKey {
    const char* link;
    const char* number;
    const char* shown;
    KeyState state;
    const char* savedLink;
    const char* savedNumber; ///< "#" means the key's number in 14 digits
};
const StoredKey storedKeys[] = {
    {"'0'", "'000000000000001001'", "P00000000000001001 Cola", KeyState::Plu, "0", "000000000000001001"},
    {"'0'", "'123456789012345678'", "P123456789012345678 Malt", KeyState::Plu, "0", "123456789012345678"},
    {"'0'", "'000000000000009999'", "PLU ITEM", KeyState::Missing, "0", "000000000000009999"},
    {"'0'", "null", "PLU ITEM", KeyState::Missing, "0", "null"},
    {"'271'", "'001200000000000777'", "W00000000000000012 Breakfast", KeyState::LookUp, "271", "0012#"},
    {"'271'", "'0099'", "WLU ITEM", KeyState::Missing, "271", "0099#"},
    {"'5'", "'999'", "CASH", KeyState::Function, "5", "0000#"},
    {"'7'", "'000000000000001001'", "Function Key", KeyState::Missing, "7", "0000#"},
    {"''", "'000000000000001001'", "Function Key", KeyState::Unprogrammed, "", "0000#"},
    {"null", "null", "Function Key", KeyState::Unprogrammed, "null", "0000#"},
};

TEST(KeyLevel, ShowsWhatARowSaysAndWritesTheKeyNumberWhereItBelongs)
{
    const LevelShop shop;
    int key = 0;
    for (const StoredKey& row : storedKeys)
        shop.put(++key, row.link, row.number);
    KeyLevel level(shop.keyboard, shop.open());
    level.read(shownLevel);
    EXPECT_EQ(level.key({0, 1}).text, u"Journal Feed\rFIXED"_s);
    level.save();
    EXPECT_FALSE(level.differs());
    key = 0;
    for (const StoredKey& row : storedKeys) {
        const Key& shown = level.key(shop.cellOf(++key));
        EXPECT_EQ(shown.text.toStdString(), row.shown) << key;
        EXPECT_EQ(shown.state, row.state) << key;
        EXPECT_EQ(shop.stored("KEYLINK", key), row.savedLink) << key;
        const auto number = QString::number(key).rightJustified(14, u'0');
        EXPECT_EQ(shop.stored("NLU", key),
                  QString::fromLatin1(row.savedNumber).replace(u'#', number).toStdString());
    }
    EXPECT_EQ(shop.stored("NLU", 158), "000000000000000158");
    EXPECT_EQ(shop.stored("NLU", 159), "000000000000003001") << "level 3 is unchanged";
    EXPECT_EQ(shop.stored("NLU", 0), "000000000000001158") << "level 1 is unchanged";
}

const std::pair<const char*, const char*> badRows[] = {
    {"delete * from keylink where id > 300",
     "3021 Table KEYLINK, row 301: No current record. (KEYLINK) Upload Key Link from the ECR first."},
    {"delete * from nlu",
     "3021 Table NLU, row 1: No current record. (NLU) Upload PLU & WLU Relocation from the ECR first."},
    {"update keylink set keylink = 'ab' where id = 200", "3421 Table KEYLINK, row 200: "},
    {"update nlu set nlu = 'ab' where id = 159", "3421 Table NLU, row 159: "},
};

TEST(KeyLevel, NamesTableRowAndRemedyOfBadRows)
{
    for (const auto& [spoil, words] : badRows) {
        const LevelShop shop;
        shop.put(1, "'271'", "'0012'");
        KeyLevel level(shop.keyboard, shop.open());
        level.read(1);
        shop.execute(spoil);
        const QString message = test::failureTextOf([&] { level.read(shownLevel); });
        EXPECT_TRUE(message.startsWith(QLatin1String(words))) << message.toStdString();
        EXPECT_EQ(level.level(), 1);
    }
}

TEST(KeyLevel, ASaveThatFailsLeavesBothTablesAsTheyWere)
{
    const LevelShop shop;
    KeyLevel level(shop.keyboard, shop.open());
    level.read(shownLevel);
    level.setKey(shop.cellOf(1), *level.items().keyFor(ItemKind::Plu, u"1001"_s));
    EXPECT_TRUE(level.differs());
    shop.execute("delete * from nlu where id > 300");
    const auto links = shop.column("KEYLINK", "KEYLINK");
    const auto numbers = shop.column("NLU", "NLU");
    EXPECT_THROW(level.save(), RuntimeFailure);
    EXPECT_EQ(shop.column("KEYLINK", "KEYLINK"), links);
    EXPECT_EQ(shop.column("NLU", "NLU"), numbers);
    EXPECT_TRUE(level.differs()) << "the change can still be saved";
}

} // namespace
} // namespace norvane::keys
