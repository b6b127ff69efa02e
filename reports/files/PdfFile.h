// Saves a report as PDF. The file is written under another name first and then renamed, so that an
// existing file is kept if the disk is full or the user cancels.
#pragma once

#include "reports/data/KeepGoing.h"
#include "reports/data/ReportData.h"

namespace norvane::reports
{

/// The pages as they are printed, with the charts if @p showsCharts, and an outline of groups and charts.
/// @throws ReportError with file and reason when it cannot be written, and ReportCancelled.
void writePdf(const ReportData& report, bool showsCharts, const QString& path,
              const KeepGoing& keepGoing = {});

} // namespace norvane::reports
