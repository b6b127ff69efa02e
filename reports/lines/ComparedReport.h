// Two periods of one report side by side.
#pragma once

#include "reports/data/ReportData.h"

namespace norvane::reports
{

/// The lines of @p now with those of @p before beside them. Both come from one layout. The columns before the
/// first compared one identify a line; each compared column is followed by its number in the other
/// period, the change and the change in per cent, which is a dash where the other period has zero. Other
/// columns are left out. Heading, page and charts are those of @p now.
[[nodiscard]] ReportData comparedReport(const ReportData& now, const ReportData& before);

/// The change in per cent, a dash where @p before is zero.
[[nodiscard]] ReportCell changePercent(const Decimal& change, const Decimal& before);

} // namespace norvane::reports
