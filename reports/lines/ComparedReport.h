// Two periods of one report side by side.
#pragma once

#include "reports/data/ReportData.h"

namespace norvane::reports
{

/// Where lines are that only the other period has.
enum class OtherLines {
    ByFirstColumn, ///< among the others
    Last           ///< after them, as in an order by the numbers of the period: theirs are zero
};

/// The lines of @p now with those of @p before beside them. Both come from one layout. The columns before the
/// first compared one identify a line; each compared column is followed by its number in the other
/// period, the change and the change in per cent, which is a dash where the other period has zero. A compared
/// text is followed by that of the other period only, with a dash in lines that one of them does not have.
/// Other columns are left out. Heading, page and charts are those of @p now.
[[nodiscard]] ReportData comparedReport(const ReportData& now, const ReportData& before,
                                        OtherLines others = OtherLines::ByFirstColumn);

/// The change in per cent, a dash where @p before is zero.
[[nodiscard]] ReportCell changePercent(const Decimal& change, const Decimal& before);

} // namespace norvane::reports
