// Levels as text files, from shop to shop.
#include "keys/layout/LevelFile.h"

#include "keys/layout/KeyEditor.h"
#include "keys/layout/LevelImport.h"
#include "tests/keys/KeyShop.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

/// A shop with an empty Dorvik keyboard, and PLUs 1001 and 1002, functions 5 and 6, look-up 12.
struct Shop {
    Shop()
    {
        keys.addKeyboard(keyboard.keysPerLevel);
        keys.addItems();
        keys.execute("insert into WLU (WLUno, DESCRIPTION) values (12, 'Breakfast')");
        keys.execute("update keylink set keylink = null");
    }
    void put(int number, ItemKind kind, const char* item)
    {
        level.setKey(cellOf(number), *level.items().keyFor(kind, QLatin1String(item)));
    }
    [[nodiscard]] KeyCell cellOf(int number) const
    {
        return keyboard.walk()[static_cast<std::size_t>(number) - 1];
    }
    [[nodiscard]] QString textOf(int number) const { return keyInWords(level.key(cellOf(number))); }
    LevelImport plan(const QByteArray& text)
    {
        return planLevelImport(readLevelText(text, keyboard), level, *database);
    }

    const KeyGeometry& keyboard = dorvikKeyboard();
    test::KeyShop keys{"3"};
    std::shared_ptr<store::Database> database = keys.open();
    KeyLevel level{keyboard, database};
};

QByteArray exported()
{
    Shop from;
    from.level.read(2);
    from.put(1, ItemKind::Plu, "1001");
    from.put(2, ItemKind::Plu, "1002");
    from.put(3, ItemKind::Function, "5");
    from.put(158, ItemKind::LookUp, "12");
    from.level.setKey(from.cellOf(4), KeyItems::missingKey(ItemKind::Plu, u"4711"_s));
    return levelText(from.level, u"Caf\u00e9\nWest"_s);
}

TEST(LevelFile, HoldsNumbersAndNamesOfAllKeys)
{
    const QByteArray text = exported();
    EXPECT_TRUE(
        text.startsWith("Norvane keyboard level\r\nKeyboard: Dorvik, 158 keys\r\nShop: Caf\xc3\xa9 West\r\n"
                        "Level: 2\r\nKey\tKind\tNumber\tName\r\n1\tPLU\t1001\tCola\r\n"
                        "2\tPLU\t1002\tLemonade\r\n3\tFunction\t5\tCASH\r\n4\tPLU\t4711\t\r\n5\t\t\t\r\n"))
        << text.toStdString();
    EXPECT_TRUE(text.endsWith("158\tLook-up\t12\tBreakfast\r\n"));
    Shop same;
    same.level.read(1);
    const LevelImport plan = same.plan(QByteArray(text).replace("\r\n", "\n"));
    EXPECT_EQ(plan.missing, QStringList{u"Key 4: PLU 4711"_s});
    EXPECT_EQ(plan.renamed, QStringList());
    EXPECT_EQ(plan.changed, 5);
    EXPECT_EQ(same.textOf(1), u"not programmed"_s) << "a plan changes nothing";
}

TEST(LevelFile, ItemsAreFoundByNameWhereTheNumberIsAnothers)
{
    Shop to;
    to.keys.execute("delete * from WLU");
    to.keys.execute("update PLUDATA set DESCRIPTION = 'Water' where DESCRIPTION = 'Cola'");
    to.keys.execute("update FUNCTIONKEY set DESCRIPTION = 'NOTES' where id = 5");
    to.keys.execute("insert into PLUDATA (PLUNUMBER, DESCRIPTION) values ('000000000000000007', 'Cola'), "
                    "('000000000000000008', 'Juice'), ('000000000000000009', 'Juice')");
    to.level.read(1);
    const LevelImport plan = to.plan(exported().replace("\tLemonade", "\tJuice"));
    EXPECT_EQ(plan.missing, (QStringList{u"Key 4: PLU 4711"_s, u"Key 158: Look-up 12 Breakfast"_s}));
    EXPECT_EQ(plan.renamed.join(u'\n'), u"Key 1: PLU 1001 Cola is PLU 7 Cola here\n"
                                        "Key 2: PLU 1002 Juice is PLU 1002 Lemonade here\n"
                                        "Key 3: Function 5 CASH is Function 5 NOTES here"_s);
    KeyEditor editor(to.level);
    editor.place(plan.keys);
    EXPECT_EQ(to.textOf(1), u"PLU 7 Cola"_s);
    EXPECT_EQ(to.textOf(158), u"Look-up 12, which does not exist"_s);
    to.level.save();
    EXPECT_TRUE(to.keys.column("NLU", "NLU").find("|001200000000000158|") != std::string::npos)
        << "kept until the look-up is made";
    editor.history().undo();
    EXPECT_EQ(to.textOf(1), u"not programmed"_s);
    EXPECT_FALSE(editor.history().canUndo()) << "one step";
}

TEST(LevelFile, LeavesOutKeysWhoseNumberNoItemCanHave)
{
    Shop shop;
    shop.level.read(2);
    shop.level.setKey(shop.cellOf(1), {u"0"_s, {}, u"PLU ITEM"_s, KeyState::Missing});
    shop.level.setKey(shop.cellOf(2), {u"-5"_s, {}, u"Function Key"_s, KeyState::Missing});
    shop.put(3, ItemKind::Plu, "1001");
    EXPECT_EQ(shop.textOf(1), u"PLU without a number, which does not exist"_s);
    const QByteArray text = levelText(shop.level, u"Bar"_s);
    EXPECT_TRUE(text.contains("\r\n1\t\t\t\r\n2\t\t\t\r\n3\tPLU\t1001\tCola\r\n")) << text.toStdString();
    EXPECT_EQ(shop.plan(text).changed, 2) << "the file can be read";
}

TEST(LevelFile, RefusesOtherFilesWithAReason)
{
    const QByteArray good = exported();
    const struct {
        const char* before;
        const char* after;
        const char* why;
    } faults[] = {
        {"Norvane keyboard level", "PLU;Name", "This is not a file of a keyboard level."},
        {"Dorvik, 158 keys", "Velmar, 169 keys",
         "This level is of another keyboard (Velmar, 169 keys). The keyboard here is a Dorvik, 158 keys."},
        {"Keyboard: Dorvik, 158 keys\r\n", "",
         "This level is of another keyboard (not named). The keyboard here is a Dorvik, 158 keys."},
        {"Key\tKind", "Kind", "The file has no line with the columns of the keys."},
        {"\r\n2\tPLU", "\r\n1\tPLU", "Line 7: key 1 is there twice."},
        {"\r\n7\t\t\t\r\n", "\r\n", "The file has no line for key 7."},
        {"\r\n158\t", "\r\n159\t", "Line 163: this is not a key of this keyboard"},
        {"PLU\t1001", "PLU 1001", "Line 6: this is not a key of this keyboard"},
        {"PLU\t1001", "Recipe\t1001", "Line 6: \"Recipe\" is not Function, PLU or Look-up."},
        {"PLU\t1001", "PLU\t10x1", "Line 6: \"10x1\" is not a number of the kind PLU."},
        {"Function\t5", "Function\t271", "Line 8: \"271\" is not a number of the kind Function."},
        {"Look-up\t12", "Look-up\t12345", "Line 163: \"12345\" is not a number of the kind Look-up."},
    };
    for (const auto& fault : faults) {
        try {
            (void)readLevelText(QByteArray(good).replace(fault.before, fault.after), dorvikKeyboard());
            ADD_FAILURE() << fault.why;
        } catch (const LevelFileError& error) {
            EXPECT_TRUE(error.text().startsWith(QLatin1String(fault.why))) << error.text().toStdString();
        }
    }
    EXPECT_THROW((void)readLevelText({}, dorvikKeyboard()), LevelFileError);
}

} // namespace
} // namespace norvane::keys
