// The pages that a sheet takes.
#pragma once

#include "overlay/SheetPrint.h"

#include <vector>

namespace norvane::overlay
{

/// The margins reported by a printer are accurate to a dot. In mm.
inline constexpr double marginTolerance = 0.05;

/// A page of a sheet: which columns of keys it has, and how far they are moved on it. A sheet of two pages
/// has one column on both, to be laid over each other.
struct SheetPage {
    int firstColumn = 0;
    int lastColumn = 0;
    double moved = 0;        ///< to the right, in mm
    bool isCutLeft = false;  ///< the first column begins at the mark where the pages overlap
    bool isCutRight = false; ///< the last column begins there

    [[nodiscard]] bool has(const OverlayKey& key) const
    {
        return key.column >= firstColumn && key.column <= lastColumn;
    }
};

/// One page, even if keys do not fit on it; two if the target's options allow them and the keys fit on two,
/// but not on one.
[[nodiscard]] std::vector<SheetPage> pagesOf(const OverlayLayout& layout, const TargetPrinter& target);

/// Left edge of the keys of a column, in mm from the corner of the printable area.
[[nodiscard]] double columnLeft(const OverlayLayout& layout, int column);

} // namespace norvane::overlay
