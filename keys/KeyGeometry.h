// The keyboards of the register families: where their keys are and in which order registers count them.
#pragma once

#include "register/RegisterModel.h"

#include <QLatin1StringView>

#include <optional>
#include <span>
#include <vector>

namespace norvane::keys
{

inline constexpr int levelCount = keyboardLevels;

/// Place of a cell of the grid, row and column from 0.
struct KeyCell {
    int row = 0;
    int column = 0;
    bool operator==(const KeyCell&) const = default;
    friend KeyCell operator+(KeyCell cell, KeyCell offset)
    {
        return {cell.row + offset.row, cell.column + offset.column};
    }
    friend KeyCell operator-(KeyCell cell, KeyCell other)
    {
        return {cell.row - other.row, cell.column - other.column};
    }
};

/// A cell whose key has the same function on every register. It has no row in the tables.
struct FixedCell {
    KeyCell cell;
    QLatin1StringView text; ///< with a carriage return between its lines
};

/// A keyboard: its rows, columns and fixed keys.
struct KeyGeometry {
    QLatin1StringView form; ///< name of its editor
    int rows;
    int columns;
    int keysPerLevel; ///< rows of KEYLINK and of NLU for a level
    std::span<const FixedCell> fixedCells;

    /// Rows of both tables before those of @p level, which counts from 1.
    [[nodiscard]] int rowsAhead(int level) const { return (level - 1) * keysPerLevel; }
    /// The text of a fixed cell, nullptr for any other cell.
    [[nodiscard]] const FixedCell* fixedAt(KeyCell cell) const;
    [[nodiscard]] bool contains(KeyCell cell) const;
    /// Number of the key in its level, from 1, by which tables and registers count: column by column from
    /// the left, in each column from the bottom up. Nothing for a fixed cell.
    [[nodiscard]] std::optional<int> keyNumber(KeyCell cell) const;
    /// The cells of a level's keys in that order: key number 1 first.
    [[nodiscard]] std::vector<KeyCell> walk() const;
};

/// Row height and column width of every keyboard's grid, in twips.
inline constexpr double cellHeightTwips = 600;
inline constexpr double cellWidthTwips = 1800;

[[nodiscard]] const KeyGeometry& velmarKeyboard();
[[nodiscard]] const KeyGeometry& dorvikKeyboard();
[[nodiscard]] const KeyGeometry& keyboardOf(RegisterFamily family);

} // namespace norvane::keys
