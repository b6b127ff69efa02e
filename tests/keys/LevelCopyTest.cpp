// Copying levels row by row, on both keyboards and where rows are missing.
#include "keys/LevelCopy.h"

#include "tests/keys/KeyShop.h"

namespace norvane::keys
{
namespace
{

using namespace Qt::Literals::StringLiterals;
using test::KeyShop;

/// What key @p key of level @p level does, in both tables: the same number unless a copy went wrong.
std::string keyAt(const KeyShop& shop, const KeyGeometry& keyboard, int level, int key)
{
    const qsizetype row = keyboard.rowsAhead(level) + key - 1;
    const auto links = QString::fromStdString(shop.column("KEYLINK", "KEYLINK")).split(u'|');
    const auto numbers = QString::fromStdString(shop.column("NLU", "NLU")).split(u'|');
    EXPECT_EQ(numbers.at(row).toInt(), links.at(row).toInt());
    return links.at(row).toStdString();
}

TEST(LevelCopy, CountsTheSameKeysOnTheLargerKeyboardAndTellsSo)
{
    const KeyShop shop;
    const KeyGeometry& keyboard = velmarKeyboard();
    shop.addKeyboard(keyboard.keysPerLevel);
    LevelCopy{1, 2}.run(*shop.open());
    for (const auto& [level, key, does] :
         {std::tuple(1, 158, "1158"), {1, 159, "1001"}, {1, 169, "1011"}, {2, 147, "1158"}, {2, 148, "2148"}})
        EXPECT_EQ(keyAt(shop, keyboard, level, key), does);
    const LevelCopy down{5, 1};
    EXPECT_TRUE(down.misplacedKeys(keyboard).contains(
        u"copy keys 126 to 169 of Level 4 and keys 1 to 114 of Level 5 over keys 1 to 158 of Level 1."_s));
    EXPECT_EQ((LevelCopy{3, 3}.misplacedKeys(keyboard)), QString());
}

TEST(LevelCopy, LeavesAllAsItWasWhenATableEndsBefore)
{
    const KeyShop shop("3");
    shop.addKeyboard(dorvikKeyboard().keysPerLevel, 2);
    shop.execute("delete * from nlu where id = 316");
    const auto links = shop.column("KEYLINK", "KEYLINK");
    const auto numbers = shop.column("NLU", "NLU");
    for (const LevelCopy copy : {LevelCopy{1, 2}, LevelCopy{2, 1}, LevelCopy{1, 5}}) {
        const QString told = test::failureTextOf([&] { copy.run(*shop.open()); });
        EXPECT_TRUE(told.startsWith(u"3021 "_s) && told.contains(u"from the ECR first."_s));
        EXPECT_EQ(shop.column("KEYLINK", "KEYLINK"), links);
        EXPECT_EQ(shop.column("NLU", "NLU"), numbers);
    }
}

} // namespace
} // namespace norvane::keys
