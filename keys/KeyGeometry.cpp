// The two keyboards as data; see KeyGeometry.h.
#include "keys/KeyGeometry.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr FixedCell dorvikFixed[] = {
    {{0, 0}, "Receipt Feed\rFIXED"_L1},
    {{0, 1}, "Journal Feed\rFIXED"_L1},
};

constexpr KeyGeometry velmar{"KeyLayoutVelmar"_L1, 13, 13, keysOfLevel(RegisterFamily::Velmar), {}};
constexpr KeyGeometry dorvik{"KeyLayoutDorvik"_L1, 10, 16, keysOfLevel(RegisterFamily::Dorvik), dorvikFixed};

} // namespace

const FixedCell* KeyGeometry::fixedAt(KeyCell cell) const
{
    const auto found = std::ranges::find(fixedCells, cell, &FixedCell::cell);
    return found == fixedCells.end() ? nullptr : &*found;
}

bool KeyGeometry::contains(KeyCell cell) const
{
    return cell.row >= 0 && cell.row < rows && cell.column >= 0 && cell.column < columns;
}

std::vector<KeyCell> KeyGeometry::walk() const
{
    std::vector<KeyCell> cells;
    cells.reserve(static_cast<std::size_t>(keysPerLevel));
    for (int column = 0; column < columns; ++column) {
        for (int row = rows - 1; row >= 0; --row) {
            if (fixedAt({row, column}) == nullptr)
                cells.push_back({row, column});
        }
    }
    return cells;
}

std::optional<int> KeyGeometry::keyNumber(KeyCell cell) const
{
    if (!contains(cell) || fixedAt(cell) != nullptr)
        return std::nullopt;
    const auto isAhead = [cell](const FixedCell& fixed) {
        return fixed.cell.column < cell.column ||
               (fixed.cell.column == cell.column && fixed.cell.row > cell.row);
    };
    const auto fixedAhead = static_cast<int>(std::ranges::count_if(fixedCells, isAhead));
    return cell.column * rows + (rows - cell.row) - fixedAhead;
}

const KeyGeometry& velmarKeyboard()
{
    return velmar;
}

const KeyGeometry& dorvikKeyboard()
{
    return dorvik;
}

const KeyGeometry& keyboardOf(RegisterFamily family)
{
    return family == RegisterFamily::Velmar ? velmar : dorvik;
}

} // namespace norvane::keys
