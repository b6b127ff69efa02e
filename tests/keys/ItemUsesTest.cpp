// Where functions and look-ups are used, in a real database.
#include "keys/ItemUses.h"

#include "tests/keys/KeyShop.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

TEST(ItemUses, ListsKeysOfAllLevelsAndLookUps)
{
    const test::KeyShop shop;
    shop.addKeyboard(169);
    shop.execute("update keylink set keylink = '271' where id in (5, 170)");
    shop.execute("update nlu set nlu = '001200000000000005' where id in (5, 170)");
    shop.execute("update keylink set keylink = '12' where id = 845");
    for (const char* const lookUp :
         {"12, 'Sauces', 0, 2, '0012', 0, '12'", "3, 'Steak \"%1\"', 12, 0, '12', 2, '12'"}) {
        shop.execute("insert into WLU (WLUno, DESCRIPTION, LINK, wlutype1, codenumber1, wlutype50, "
                     "codenumber50) values (" +
                     QByteArray(lookUp) + ")");
    }
    const auto database = shop.open();
    const auto uses = [&](ItemKind kind, const char* number) {
        return usesOfItem(*database, velmarKeyboard(), kind, QLatin1String(number))
            .join(u" | "_s)
            .toStdString();
    };
    EXPECT_EQ(uses(ItemKind::LookUp, "12"), "Keyboard level 1, key 5 | Keyboard level 2, key 1 | Link of "
                                            "window look-up 3 \"Steak \"%1\"\"");
    EXPECT_EQ(uses(ItemKind::Function, "12"),
              "Keyboard level 5, key 169 | Window look-up 3 \"Steak \"%1\"\", line 50 | "
              "Window look-up 12 \"Sauces\", line 1");
    EXPECT_EQ(uses(ItemKind::LookUp, "3"), "");
    EXPECT_EQ(uses(ItemKind::LookUp, "0"), "") << "0 is not a link";
}

} // namespace
} // namespace norvane::keys
