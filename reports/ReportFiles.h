// The files that a report is taken along in: PDF, CSV and spreadsheet. Each holds every line, totals
// included, with the figures of the preview. A file is written beside its place and then put there, so that a
// former one stays when the disk fills up or the user gives up.
#pragma once

#include "reports/ReportRun.h"

namespace norvane::reports
{

/// The pages as they are printed, with the charts where @p showsCharts.
/// @throws ReportError with file and reason when it cannot be written, and ReportCancelled, as all functions
/// here.
void writePdf(const ReportData& report, bool showsCharts, const QString& path,
              const KeepGoing& keepGoing = {});

/// A table that a spreadsheet opens at a double click: UTF-8 with a byte order mark, the decimal sign of the
/// user's locale, and semicolons between the values where that is a comma. The first line is the headings.
void writeCsv(const ReportData& report, const QString& path, const KeepGoing& keepGoing = {});

/// Excel's format. Numbers and days can be reckoned with; texts stay texts, whatever they begin with and
/// however many digits they have.
void writeXlsx(const ReportData& report, const QString& path, const KeepGoing& keepGoing = {});

} // namespace norvane::reports
