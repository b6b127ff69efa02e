// See CellOrder.h.
#include "overlay/CellOrder.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <tuple>

namespace norvane::overlay
{
namespace
{

/// The middle of a cell, in millimetres.
struct Middle {
    double x = 0;
    double y = 0;
};

Middle middleOf(const OverlayLayout& layout, int cell)
{
    const OverlayKey& key = layout.keyOf(cell);
    const double lineHeight = key.height.inMillimetres() / key.cells;
    return {key.x.inMillimetres() + key.width.inMillimetres() / 2,
            key.y.inMillimetres() + (cell - key.firstCell + 0.5) * lineHeight};
}

/// Distance of @p to from @p from along a direction, and to the side of it.
struct Way {
    double ahead = 0;
    double sideways = 0;
};

Way wayTo(Middle from, Middle to, ArrowDirection direction)
{
    const double right = to.x - from.x;
    const double down = to.y - from.y;
    switch (direction) {
    case ArrowDirection::Left:
        return {-right, std::abs(down)};
    case ArrowDirection::Right:
        return {right, std::abs(down)};
    case ArrowDirection::Up:
        return {-down, std::abs(right)};
    case ArrowDirection::Down:
        break;
    }
    return {down, std::abs(right)};
}

/// Cells in line with the first one come before those beside it, however near.
double detour(const Way& way)
{
    constexpr double sidewaysCosts = 3;
    return way.ahead + sidewaysCosts * way.sideways;
}

/// Cells less than this ahead, in millimetres, are side by side.
constexpr double sideBySide = 1;

} // namespace

std::vector<int> readingOrder(const OverlayLayout& layout)
{
    std::vector<int> cells(static_cast<std::size_t>(layout.cellCount()));
    std::iota(cells.begin(), cells.end(), 0);
    std::ranges::sort(cells, {}, [&layout](int cell) {
        const OverlayKey& key = layout.keyOf(cell);
        return std::tuple(key.row, key.column, cell);
    });
    return cells;
}

QString placeName(const OverlayLayout& layout, int cell)
{
    const OverlayKey& key = layout.keyOf(cell);
    return QStringLiteral("Column %1, key %2, line %3")
        .arg(key.column + 1)
        .arg(key.row + 1)
        .arg(cell - key.firstCell + 1);
}

int neighbour(const OverlayLayout& layout, int cell, ArrowDirection direction)
{
    const Middle from = middleOf(layout, cell);
    int nearest = cell;
    double least = 0;
    for (int other = 0; other < layout.cellCount(); ++other) {
        const Way way = wayTo(from, middleOf(layout, other), direction);
        if (way.ahead < sideBySide || (nearest != cell && detour(way) >= least))
            continue;
        nearest = other;
        least = detour(way);
    }
    return nearest;
}

} // namespace norvane::overlay
