// Makes a summary: the blocks of a layout, each over the same period and beside the same other one.
#pragma once

#include "reports/lines/ReportLayout.h"
#include "reports/lines/ReportRun.h"
#include "reports/lines/SalesDays.h"

#include <functional>
#include <optional>

namespace norvane::reports
{

/// A period of a summary, and what is known about its days.
struct SummaryPeriod {
    std::optional<Period> period; ///< nothing for all days
    std::optional<SalesDays> days = {};
};

/// The lines of @p layout over the selection of @p request, never compared.
/// @param days of the selection, which is looked up only once for all blocks.
using LayoutRunner = std::function<ReportData(const ReportRequest& request, const ReportLayout& layout,
                                              const std::optional<SalesDays>& days)>;

/// The heading of a summary over its period, and what else the runs of its blocks need.
struct SummaryFrame {
    ReportHeading heading;
    SummaryPeriod now;
    std::optional<SummaryPeriod> before; ///< of a comparison
};

/// @return the summary: its blocks, and their lines one after the other, each block as a group. A period
/// without a line in any block gives no blocks, and the notice of the heading.
/// @throws what @p run throws.
[[nodiscard]] ReportData runSummary(const ReportRequest& request, const ReportLayout& layout,
                                    const SummaryFrame& frame, const LayoutRunner& run);

} // namespace norvane::reports
