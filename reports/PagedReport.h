// A whole report on paper.
#pragma once

#include "reports/ReportData.h"

class QPagedPaintDevice;

namespace norvane::reports
{

/// Paints all pages on @p device, a printer or a PDF. @return false when the device failed.
[[nodiscard]] bool paintReport(const ReportData& report, bool showsCharts, QPagedPaintDevice& device);

} // namespace norvane::reports
