// Makes a summary: the blocks of a layout, each over the same period and beside the same other one.
#pragma once

#include "reports/lines/ReportLayout.h"
#include "reports/lines/ReportRun.h"

namespace norvane::reports
{

/// The lines of @p layout over the selection of @p request, never compared.
using LayoutRunner = std::function<ReportData(const ReportRequest& request, const ReportLayout& layout)>;

/// The heading of a summary over its period, and what else the runs of its blocks need.
struct SummaryFrame {
    ReportHeading heading;
    std::vector<QDate> missing;   ///< days of the period without a collection
    std::optional<Period> period; ///< nothing for all days
    std::optional<Period> before; ///< of a comparison
};

/// @return the summary: its blocks, and their lines one after the other, each block as a group. A period
/// without a line in any block gives no blocks, and the notice of the heading.
/// @throws what @p run throws.
[[nodiscard]] ReportData runSummary(const ReportRequest& request, const ReportLayout& layout,
                                    const SummaryFrame& frame, const LayoutRunner& run);

} // namespace norvane::reports
