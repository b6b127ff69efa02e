// Blocks of keys that move, are copied and come back, by what the upper left of a level does then.
#include "keys/KeyEditor.h"

#include "tests/keys/KeyShop.h"

#include <functional>

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
        shop.addKeyboard(keyboard.keysPerLevel, 2);
        level.emplace(keyboard, shop.open());
        level->read(1);
        // Letters instead of key links, to be read at a glance.
        for (int row = 1; row <= 3; ++row) {
            for (int column = 0; column < 4; ++column) {
                const char letter = static_cast<char>('a' + (row - 1) * 4 + column);
                level->setKey({row, column}, {QString(QLatin1Char(letter)), {}, {}, KeyState::Function});
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
                shown += level->key({row, column}).function.leftJustified(1, u'.');
            rows += shown;
        }
        return rows.join(u' ').toStdString();
    }

    KeyShop shop{"3"};
    const KeyGeometry& keyboard = dorvikKeyboard();
    std::optional<KeyLevel> level;
    KeyEditor editor{*level};
};

constexpr auto untouched = "abcd efgh ijkl";
const KeyCells pair{{1, 0}, {1, 1}};

TEST_F(KeyEditorTest, EveryChangeIsOneStepBackAndForth)
{
    const auto copyAndPaste = [](KeyEditor& it, const KeyCells& from, const KeyCells& to) {
        it.copy(from);
        return it.paste(to);
    };
    const auto markAndSwap = [](KeyEditor& it, const KeyCells& from, const KeyCells& to) {
        it.mark(from);
        return it.swapWithMarked(to);
    };
    const std::pair<std::function<Refusal(KeyEditor&)>, const char*> cases[] = {
        {[](KeyEditor& it) {
             return it.swap({{1, 0}}, {1, 0}, {3, 3});
         },
         "lbcd efgh ijka"},
        {[](KeyEditor& it) {
             return it.swap(pair, {1, 1}, {2, 1});
         },
         "efcd abgh ijkl"},
        {[](KeyEditor& it) {
             return it.swap({{1, 1}, {1, 0}}, {1, 0}, {1, 1});
         },
         "cabd efgh ijkl"},
        {[](KeyEditor& it) {
             return it.swap({{1, 0}, {2, 1}}, {1, 0}, {2, 1});
         },
         "kbcd eagh ijfl"},
        {[](KeyEditor& it) {
             return it.copyTo(pair, {1, 0}, {1, 1});
         },
         "aabd efgh ijkl"},
        {[&](KeyEditor& it) {
             return copyAndPaste(it, pair, {{3, 2}});
         },
         "abcd efgh ijab"},
        {[&](KeyEditor& it) {
             return copyAndPaste(it, {{1, 0}}, {{2, 0}, {3, 3}});
         },
         "abcd afgh ijka"},
        {[&](KeyEditor& it) {
             return markAndSwap(it, pair, {{3, 2}, {3, 3}});
         },
         "klcd efgh ijab"},
        {[](KeyEditor& it) {
             return it.cut({{1, 0}, {2, 0}});
         },
         ".bcd .fgh ijkl"},
    };
    for (const auto& [change, after] : cases) {
        EXPECT_EQ(change(editor), Refusal::None);
        EXPECT_EQ(keys(), after);
        editor.undo();
        EXPECT_EQ(keys(), untouched);
        EXPECT_FALSE(editor.canUndo());
        editor.redo();
        EXPECT_EQ(keys(), after);
        editor.undo();
    }
}

TEST_F(KeyEditorTest, RefusesWhatTouchesAFixedKeyOrLeavesTheKeyboard)
{
    editor.copy(pair);
    const std::pair<std::function<Refusal(KeyEditor&)>, Refusal> cases[] = {
        {[](KeyEditor& it) {
             return it.swap({{0, 0}}, {0, 0}, {3, 3});
         },
         Refusal::FixedKey},
        {[](KeyEditor& it) {
             return it.swap(pair, {1, 0}, {0, 0});
         },
         Refusal::FixedKey},
        {[](KeyEditor& it) {
             return it.copyTo({{1, 2}, {2, 2}}, {1, 2}, {0, 1});
         },
         Refusal::FixedKey},
        {[](KeyEditor& it) {
             return it.paste({{0, 1}});
         },
         Refusal::FixedKey},
        {[](KeyEditor& it) {
             return it.cut({{1, 0}, {0, 0}});
         },
         Refusal::FixedKey},
        {[](KeyEditor& it) {
             return it.swap(pair, {1, 1}, {1, 0});
         },
         Refusal::Outside},
        {[](KeyEditor& it) {
             return it.paste({{9, 15}});
         },
         Refusal::Outside},
        {[](KeyEditor& it) {
             return it.swapWithMarked({{1, 0}});
         },
         Refusal::NoKeys},
    };
    for (const auto& [change, refusal] : cases) {
        EXPECT_EQ(change(editor), refusal);
        EXPECT_EQ(keys(), untouched);
        EXPECT_FALSE(editor.canUndo());
    }
}

TEST_F(KeyEditorTest, CopiedKeysOutliveTheLevelAndStepsDoNot)
{
    editor.cut(pair);
    level->read(2);
    editor.levelWasRead();
    EXPECT_FALSE(editor.canUndo());
    EXPECT_EQ(editor.paste({{3, 3}}), Refusal::None);
    EXPECT_EQ(level->key({3, 4}).function, u"b"_s);
    editor.undo();
    editor.clear({{1, 0}});
    EXPECT_FALSE(editor.canRedo()) << "a new change takes the place of what was undone";
}

} // namespace
} // namespace norvane::keys
