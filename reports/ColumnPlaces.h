// Columns fitted to a page's width.
#pragma once

#include "reports/PageText.h"

#include <vector>

namespace norvane::reports
{

/// From a page's left edge, in mm.
struct ColumnPlace {
    double left = 0;
    double width = 0;
    [[nodiscard]] double right() const { return left + width; }
};

/// Where the columns stand and how large their letters are.
struct ColumnPlaces {
    std::vector<ColumnPlace> columns;
    double textSize = 0; ///< of letters in lines and headings, in mm
};

/// Free space at both sides of a cell, in mm.
inline constexpr double cellMargin = 1.3;

/// Fills @p width mm from @p left with the columns of @p report in proportion to their own widths. No number
/// is cut: where space is short, texts give way first, to be broken into rows, and then all letters become
/// smaller.
[[nodiscard]] ColumnPlaces fitColumns(const ReportData& report, const PageText& text, double left,
                                      double width);

} // namespace norvane::reports
