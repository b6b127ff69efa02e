// Columns fitted to a page's width.
#pragma once

#include "reports/data/ReportData.h"
#include "reports/pages/PageFont.h"

#include <vector>

namespace norvane::reports
{

/// The place of one column across the page, in mm from the page's left edge.
struct ColumnPlace {
    double left = 0;
    double width = 0;
    int band = 0; ///< counted from the top, where not all columns fit side by side
    [[nodiscard]] double right() const { return left + width; }
};

/// The places of the columns and the size of their letters.
struct ColumnPlaces {
    std::vector<ColumnPlace> columns;
    double textSize = 0; ///< height of the letters in lines and column headings, in mm
    /// 1 where all columns are side by side.
    [[nodiscard]] int bandCount() const { return columns.empty() ? 1 : columns.back().band + 1; }
};

/// Free space at both sides of a cell, in mm.
inline constexpr double cellMargin = 1.3;

/// Fills @p width mm from @p left with the columns of @p report, in proportion to the widths of the layout.
/// No number and no word of a heading is cut or split: where space is short, text columns become narrower
/// first, so that texts break into rows; if that is not enough, all letters become smaller; and if letters
/// would become too small to read, the last columns continue in a further band below the others.
[[nodiscard]] ColumnPlaces fitColumns(const ReportData& report, const PageFont& font, double left,
                                      double width);

} // namespace norvane::reports
