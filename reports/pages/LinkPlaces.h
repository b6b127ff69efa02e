// Where a line that opens another report can be clicked.
#pragma once

#include "reports/pages/ReportPages.h"

namespace norvane::reports
{

/// The place of the texts before the first number of a line, in mm on its page, as wide as their columns.
/// @return an empty place for a line that opens nothing.
[[nodiscard]] QRectF linkPlace(const ReportData& report, const ReportPages& pages, const PlacedLine& line);

/// The line of @p page whose link is at @p point; -1 if none is.
[[nodiscard]] qsizetype linkAt(const ReportData& report, const ReportPages& pages, int page, QPointF point);

/// The nearest line from @p line on that opens something. @param step 1 forwards, -1 backwards.
/// @return -1 if there is none.
[[nodiscard]] qsizetype nextLink(const ReportData& report, qsizetype line, int step);

} // namespace norvane::reports
