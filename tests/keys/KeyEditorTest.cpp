// Blocks of keys that move, are copied and come back, by what the upper left of a level does then.
#include "keys/KeyEditor.h"

#include "tests/keys/KeyShop.h"

namespace norvane::keys
{
namespace
{

using namespace Qt::Literals::StringLiterals;
using test::KeyShop;

class KeyEditorTest : public testing::Test
{
protected:
    KeyEditorTest()
    {
        level.read(1);
        // Letters instead of key links, to be read at a glance.
        for (int row = 1; row <= 3; ++row) {
            for (int column = 0; column < 4; ++column) {
                const char letter = static_cast<char>('a' + (row - 1) * 4 + column);
                level.setKey({row, column}, {QString(QLatin1Char(letter)), {}, {}, KeyState::Function});
            }
        }
    }

    /// Three rows of four keys below the fixed ones; an unprogrammed key as ".".
    [[nodiscard]] std::string keys() const
    {
        QStringList rows;
        for (int row = 1; row <= 3; ++row) {
            QString shown;
            for (int column = 0; column < 4; ++column)
                shown += level.key({row, column}).function.leftJustified(1, u'.');
            rows += shown;
        }
        return rows.join(u' ').toStdString();
    }

    std::shared_ptr<store::Database> filledShop()
    {
        shop.addKeyboard(keyboard.keysPerLevel, 2);
        return shop.open();
    }

    KeyShop shop{"3"};
    const KeyGeometry& keyboard = dorvikKeyboard();
    KeyLevel level{keyboard, filledShop()};
    KeyEditor editor{level};
};

constexpr auto untouched = "abcd efgh ijkl";
const KeyCells pair{{1, 0}, {1, 1}};

/// What a user does with keys; the cells of @p to are those of the grip and of the drop, or the goal.
using Change = Refusal (*)(KeyEditor& editor, const KeyCells& keys, const KeyCells& to);

Refusal swapKeys(KeyEditor& editor, const KeyCells& keys, const KeyCells& to)
{
    return editor.swap(keys, to[0], to[1]);
}
Refusal dragCopy(KeyEditor& editor, const KeyCells& keys, const KeyCells& to)
{
    return editor.copyTo(keys, to[0], to[1]);
}
Refusal copyAndPaste(KeyEditor& editor, const KeyCells& keys, const KeyCells& to)
{
    editor.copy(keys);
    return editor.paste(to);
}
Refusal markAndSwap(KeyEditor& editor, const KeyCells& keys, const KeyCells& to)
{
    editor.mark(keys);
    return editor.swapWithMarked(to);
}
Refusal cutKeys(KeyEditor& editor, const KeyCells& keys, const KeyCells& /*to*/)
{
    return editor.cut(keys);
}

const struct {
    Change change;
    KeyCells keys;
    KeyCells to;
    const char* after;
} changes[] = {
    {swapKeys, {{1, 0}}, {{1, 0}, {3, 3}}, "lbcd efgh ijka"},
    {swapKeys, pair, {{1, 1}, {2, 1}}, "efcd abgh ijkl"},
    {swapKeys, {{1, 1}, {1, 0}}, {{1, 0}, {1, 1}}, "cabd efgh ijkl"},
    {swapKeys, {{1, 0}, {2, 1}}, {{1, 0}, {2, 1}}, "kbcd eagh ijfl"},
    {dragCopy, pair, {{1, 0}, {1, 1}}, "aabd efgh ijkl"},
    {copyAndPaste, pair, {{3, 2}}, "abcd efgh ijab"},
    {copyAndPaste, {{1, 0}}, {{2, 0}, {3, 3}}, "abcd afgh ijka"},
    {markAndSwap, pair, {{3, 2}, {3, 3}}, "klcd efgh ijab"},
    {cutKeys, {{1, 0}, {2, 0}}, {}, ".bcd .fgh ijkl"},
};

TEST_F(KeyEditorTest, EveryChangeIsOneStepBackAndForth)
{
    for (const auto& [change, keysChanged, to, after] : changes) {
        EXPECT_EQ(change(editor, keysChanged, to), Refusal::None);
        EXPECT_EQ(keys(), after);
        editor.undo();
        EXPECT_EQ(keys(), untouched);
        EXPECT_FALSE(editor.canUndo());
        editor.redo();
        EXPECT_EQ(keys(), after);
        editor.undo();
    }
}

const struct {
    Change change;
    KeyCells keys;
    KeyCells to;
    Refusal refusal;
} refused[] = {
    {swapKeys, {{0, 0}}, {{0, 0}, {3, 3}}, Refusal::FixedKey},
    {swapKeys, pair, {{1, 0}, {0, 0}}, Refusal::FixedKey},
    {dragCopy, {{1, 2}, {2, 2}}, {{1, 2}, {0, 1}}, Refusal::FixedKey},
    {copyAndPaste, pair, {{0, 1}}, Refusal::FixedKey},
    {cutKeys, {{1, 0}, {0, 0}}, {}, Refusal::FixedKey},
    {swapKeys, pair, {{1, 1}, {1, 0}}, Refusal::Outside},
    {copyAndPaste, pair, {{9, 15}}, Refusal::Outside},
    {markAndSwap, {}, {{1, 0}}, Refusal::NoKeys},
};

TEST_F(KeyEditorTest, RefusesWhatTouchesAFixedKeyOrLeavesTheKeyboard)
{
    for (const auto& [change, keysChanged, to, refusal] : refused) {
        EXPECT_EQ(change(editor, keysChanged, to), refusal);
        EXPECT_EQ(keys(), untouched);
        EXPECT_FALSE(editor.canUndo());
    }
}

TEST_F(KeyEditorTest, CopiedKeysOutliveTheLevelAndStepsDoNot)
{
    editor.cut(pair);
    level.read(2);
    editor.levelWasRead();
    EXPECT_FALSE(editor.canUndo());
    EXPECT_EQ(editor.paste({{3, 3}}), Refusal::None);
    EXPECT_EQ(level.key({3, 4}).function, u"b"_s);
    editor.undo();
    editor.clear({{1, 0}});
    EXPECT_FALSE(editor.canRedo()) << "a new change takes the place of what was undone";
}

} // namespace
} // namespace norvane::keys
