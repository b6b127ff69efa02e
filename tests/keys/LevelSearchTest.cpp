// Searches over all levels and the comparison of two, on the keys of a real database.
#include "keys/layout/KeyHitList.h"
#include "keys/layout/LevelComparison.h"
#include "tests/keys/KeyShop.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

/// Level 1: key 1 PLU 1001, key 2 the same, key 3 function 5, key 4 PLU 4711 of no table; level 2: key 1
/// PLU 1001, key 158 look-up 12. All other keys do nothing.
class LevelSearchTest : public testing::Test
{
protected:
    LevelSearchTest()
    {
        shop.addKeyboard(keyboard.keysPerLevel);
        shop.addItems();
        shop.execute("insert into WLU (WLUno, DESCRIPTION) values (12, 'Breakfast'), (13, 'Lunch')");
        shop.execute("update keylink set keylink = null");
        put(1, "0", "000000000000001001");
        put(2, "0", "000000000000001001");
        put(3, "5", "000000000000000003");
        put(4, "0", "000000000000004711");
        put(159, "0", "000000000000001001");
        put(316, "271", "001200000000000158");
    }

    void put(int row, const char* link, const char* number) const
    {
        const QByteArray id = QByteArray::number(row);
        shop.execute("update keylink set keylink = '" + QByteArray(link) + "' where id = " + id);
        shop.execute("update nlu set nlu = '" + QByteArray(number) + "' where id = " + id);
    }
    /// "Level 1 key 3: Function 5 CASH", one line each.
    std::string found(KeyFilter filter, const QString& part = {})
    {
        KeyHitList list;
        list.setHits(searchKeys(keysOfAllLevels(level, database), filter, *database));
        list.setPart(part);
        QStringList lines;
        for (int row = 0; row < list.rowCount(); ++row)
            lines += list.index(row, 0).data().toString() + u": "_s + list.index(row, 1).data().toString();
        return lines.join(u'\n').toStdString();
    }

    const KeyGeometry& keyboard = dorvikKeyboard();
    test::KeyShop shop{"3"};
    std::shared_ptr<store::Database> database = shop.open();
    KeyLevel level{keyboard, database};
};

TEST_F(LevelSearchTest, FindsKeysOfAllLevelsWithTheUnsavedChangesOfTheShownOne)
{
    level.read(2);
    level.setKey(keyboard.walk()[6], *level.items().keyFor(ItemKind::Plu, u"1002"_s));
    EXPECT_EQ(found(KeyFilter::Programmed, u"co"_s), "Level 1 key 1: PLU 1001 Cola\n"
                                                     "Level 1 key 2: PLU 1001 Cola\n"
                                                     "Level 2 key 1: PLU 1001 Cola");
    EXPECT_EQ(found(KeyFilter::Programmed, u"LEMON"_s), "Level 2 key 7: PLU 1002 Lemonade");
    EXPECT_EQ(found(KeyFilter::Programmed, u"12 "_s), "Level 2 key 158: Look-up 12 Breakfast");
    EXPECT_EQ(found(KeyFilter::Programmed, u"nobody has this"_s), "");
    EXPECT_EQ(found(KeyFilter::Missing), "Level 1 key 4: PLU 4711, which does not exist");
    EXPECT_EQ(found(KeyFilter::OnNoKey), "on no key: Look-up 13 Lunch\non no key: Function 6 CHECK");
}

TEST_F(LevelSearchTest, ListsKeysOfTheSameArticleTogether)
{
    put(5, "0", "000000000000001002");
    put(160, "0", "000000000000001002");
    level.read(1);
    EXPECT_EQ(found(KeyFilter::Repeated), "Level 1 key 1: PLU 1001 Cola\n"
                                          "Level 1 key 2: PLU 1001 Cola\n"
                                          "Level 2 key 1: PLU 1001 Cola\n"
                                          "Level 1 key 5: PLU 1002 Lemonade\n"
                                          "Level 2 key 2: PLU 1002 Lemonade");
}

TEST_F(LevelSearchTest, LevelsThatCannotBeReadDoNotHideTheOthers)
{
    shop.execute("delete from nlu where id > 600");
    put(400, "0", "not a number");
    level.read(1);
    const KeyboardKeys keys = keysOfAllLevels(level, database);
    EXPECT_EQ(keys.keys.size(), 3U * 158);
    ASSERT_EQ(keys.failures.size(), 2);
    EXPECT_TRUE(keys.failures[0].startsWith(u"Level 4 cannot be read. Table NLU, row 601"_s))
        << keys.failures[0].toStdString();
}

TEST_F(LevelSearchTest, ComparesWhatKeysDoAndNotTheirCodes)
{
    put(316, "5", "000000000000000158");
    put(158, "5", "000000000000009999");
    level.read(1);
    KeyLevel other(keyboard, database);
    other.read(2);
    const std::vector<KeyDifference> differences = differencesOf(level, other);
    ASSERT_EQ(differences.size(), 3U) << "keys 1 and 158 do the same";
    EXPECT_EQ(differences[0].number, 2);
    EXPECT_EQ(differences[0].cell, (KeyCell{8, 0}));
    EXPECT_EQ(differences[0].left.text, u"P00000000000001001 Cola"_s);
    EXPECT_EQ(differences[0].right.state, KeyState::Unprogrammed);
    EXPECT_EQ(differences[2].number, 4);
}

} // namespace
} // namespace norvane::keys
