// Blocks of keys that move, are copied and come back, by what the upper left of a level does then.
#include "keys/layout/KeyEditor.h"

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

/// What a user does with keys.
enum class Act { Swap, DragCopy, CopyAndPaste, MarkAndSwap, Cut };

/// The cells of @p to are those of the grip and of the drop, or the goal.
Refusal change(KeyEditor& editor, Act act, const KeyCells& keys, const KeyCells& to)
{
    switch (act) {
    case Act::Swap:
        return editor.swap(keys, to[0], to[1]);
    case Act::DragCopy:
        return editor.copyTo(keys, to[0], to[1]);
    case Act::CopyAndPaste:
        editor.copy(keys);
        return editor.paste(to);
    case Act::MarkAndSwap:
        editor.mark(keys);
        return editor.swapWithMarked(to);
    default:
        return editor.cut(keys);
    }
}

const struct {
    Act act;
    KeyCells keys;
    KeyCells to;
    const char* after;
    Refusal refusal = Refusal::None;
} changes[] = {
    {Act::Swap, {{1, 0}}, {{1, 0}, {3, 3}}, "lbcd efgh ijka"},
    {Act::Swap, pair, {{1, 1}, {2, 1}}, "efcd abgh ijkl"},
    {Act::Swap, {{1, 1}, {1, 0}}, {{1, 0}, {1, 1}}, "cabd efgh ijkl"},
    {Act::Swap, {{1, 0}, {2, 1}}, {{1, 0}, {2, 1}}, "kbcd eagh ijfl"},
    {Act::DragCopy, pair, {{1, 0}, {1, 1}}, "aabd efgh ijkl"},
    {Act::CopyAndPaste, pair, {{3, 2}}, "abcd efgh ijab"},
    {Act::CopyAndPaste, {{1, 0}}, {{2, 0}, {3, 3}}, "abcd afgh ijka"},
    {Act::MarkAndSwap, pair, {{3, 2}, {3, 3}}, "klcd efgh ijab"},
    {Act::Cut, {{1, 0}, {2, 0}}, {}, ".bcd .fgh ijkl"},
    {Act::Swap, {{0, 0}}, {{0, 0}, {3, 3}}, untouched, Refusal::FixedKey},
    {Act::Swap, pair, {{1, 0}, {0, 0}}, untouched, Refusal::FixedKey},
    {Act::DragCopy, {{1, 2}, {2, 2}}, {{1, 2}, {0, 1}}, untouched, Refusal::FixedKey},
    {Act::CopyAndPaste, pair, {{0, 1}}, untouched, Refusal::FixedKey},
    {Act::Cut, {{1, 0}, {0, 0}}, {}, untouched, Refusal::FixedKey},
    {Act::Swap, pair, {{1, 1}, {1, 0}}, untouched, Refusal::Outside},
    {Act::CopyAndPaste, pair, {{9, 15}}, untouched, Refusal::Outside},
};

TEST_F(KeyEditorTest, AChangeIsOneUndoStepAndARefusedOneIsNotAny)
{
    EXPECT_EQ(editor.swapWithMarked({{1, 0}}), Refusal::NoKeys);
    for (const auto& [act, keysChanged, to, after, refusal] : changes) {
        EXPECT_EQ(change(editor, act, keysChanged, to), refusal);
        EXPECT_EQ(keys(), after);
        EXPECT_EQ(editor.history().canUndo(), refusal == Refusal::None);
        editor.history().undo();
        EXPECT_EQ(keys(), untouched);
        if (refusal == Refusal::None)
            editor.history().redo();
        EXPECT_EQ(keys(), after);
        editor.history().undo();
        EXPECT_FALSE(editor.history().canUndo());
    }
}

TEST_F(KeyEditorTest, CopiedKeysOutliveTheLevelAndUndoStepsDoNot)
{
    editor.cut(pair);
    level.read(2);
    editor.levelWasRead();
    EXPECT_FALSE(editor.history().canUndo());
    EXPECT_EQ(editor.paste({{3, 3}}), Refusal::None);
    EXPECT_EQ(level.key({3, 4}).function, u"b"_s);
    editor.history().undo();
    editor.clear({{1, 0}});
    EXPECT_FALSE(editor.history().canRedo()) << "a new change takes the place of what was undone";
}

} // namespace
} // namespace norvane::keys
