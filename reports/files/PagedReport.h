// Paints all pages of a report on a printer or into a PDF.
#pragma once

#include "reports/data/KeepGoing.h"
#include "reports/pages/ReportPages.h"

#include <functional>
#include <limits>

class QPagedPaintDevice;

namespace norvane::reports
{

/// Pages from one to another, both included, counted from 1.
struct PageSpan {
    int first = 1;
    int last = std::numeric_limits<int>::max();
};

/// Paints the pages of @p span on @p device, a printer or a PDF. @p laidOut is shown all pages before.
/// @return false when the device failed.
/// @throws ReportCancelled between two pages. A printer still prints the pages painted before.
[[nodiscard]] bool paintReport(const ReportData& report, bool showsCharts, QPagedPaintDevice& device,
                               const KeepGoing& keepGoing, PageSpan span = {},
                               const std::function<void(const ReportPages&)>& laidOut = {});

} // namespace norvane::reports
