// A whole report on paper.
#pragma once

#include "reports/ReportRun.h"

class QPagedPaintDevice;

namespace norvane::reports
{

/// Paints all pages on @p device, a printer or a PDF. @return false when the device failed.
/// @throws ReportCancelled between two pages; a printer prints those that were painted.
[[nodiscard]] bool paintReport(const ReportData& report, bool showsCharts, QPagedPaintDevice& device,
                               const KeepGoing& keepGoing);

} // namespace norvane::reports
