// Paints all pages of a report on a printer or into a PDF.
#pragma once

#include "reports/ReportRun.h"

class QPagedPaintDevice;

namespace norvane::reports
{

/// Paints all pages on @p device, a printer or a PDF. @return false when the device failed.
/// @throws ReportCancelled between two pages. A printer still prints the pages painted before.
[[nodiscard]] bool paintReport(const ReportData& report, bool showsCharts, QPagedPaintDevice& device,
                               const KeepGoing& keepGoing);

} // namespace norvane::reports
