// See SheetPages.h.
#include "overlay/SheetPages.h"

#include <algorithm>
#include <limits>

namespace norvane::overlay
{
namespace
{

double columnRight(const OverlayLayout& layout, int column)
{
    double right = 0;
    for (const OverlayKey& key : layout.keys()) {
        if (key.column == column)
            right = std::max(right, key.outline().right());
    }
    return right;
}

/// The last column that ends before @p end; -1 if none does.
int lastBefore(const OverlayLayout& layout, int columns, double end)
{
    int last = -1;
    while (last + 1 < columns && columnRight(layout, last + 1) <= end)
        ++last;
    return last;
}

} // namespace

double columnLeft(const OverlayLayout& layout, int column)
{
    double left = std::numeric_limits<double>::max();
    for (const OverlayKey& key : layout.keys()) {
        if (key.column == column)
            left = std::min(left, key.outline().left());
    }
    return left;
}

std::vector<SheetPage> pagesOf(const OverlayLayout& layout, const TargetPrinter& target)
{
    const int columns = layout.keys().back().column + 1;
    const SheetPage whole{0, columns - 1};
    const QRectF area = placeOnPaper(target).inverted().mapRect(target.sheet.printableRect());
    const double end = area.right() + marginTolerance;
    const int shared = lastBefore(layout, columns, end);
    if (!target.options.mayTakeTwoPages || shared == columns - 1 || shared < 1)
        return {whole};
    const double moved = columnLeft(layout, 0) - columnLeft(layout, shared);
    if (columnRight(layout, columns - 1) + moved > end)
        return {whole};
    return {{0, shared, 0, false, true}, {shared, columns - 1, moved, true, false}};
}

} // namespace norvane::overlay
