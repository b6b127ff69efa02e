// Which key of a register lies where on the screen.
#include "keys/KeyGeometry.h"

#include <gtest/gtest.h>

namespace norvane::keys
{
namespace
{

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

TEST(KeyGeometry, CountsKeysUpTheColumnsAndPassesOverFixedCells)
{
    for (const auto& [keyboard, cell, key] : keysOfCells)
        EXPECT_EQ(keyboard.keyNumber(cell), key) << cell.row << ' ' << cell.column;
    for (const double model : {0.0, 1.0, 2.0, 3.0, -1.0, 1.5}) {
        const KeyGeometry& keyboard = keyboardOf(model);
        const std::vector<KeyCell> walk = keyboard.walk();
        ASSERT_EQ(walk.size(), model == 0 || model == 1 || model == 2 ? 169U : 158U);
        for (std::size_t key = 0; key < walk.size(); ++key)
            EXPECT_EQ(keyboard.keyNumber(walk[key]), static_cast<int>(key) + 1);
    }
}

} // namespace
} // namespace norvane::keys
