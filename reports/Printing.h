// Reports on the printer.
#pragma once

#include "reports/ReportRun.h"

#include <functional>
#include <memory>

class QPrinter;

namespace norvane::reports
{

/// Finds the printer; null when the system has none to use.
using PrinterFinder = std::function<std::unique_ptr<QPrinter>()>;

/// Prints all pages on the printer that @p findPrinter gives, without a question.
/// @return its name.
/// @throws ReportError when there is none or it fails, and ReportCancelled; pages painted by then are
/// printed.
QString printReport(const ReportData& report, bool showsCharts, const PrinterFinder& findPrinter,
                    const KeepGoing& keepGoing = {});

} // namespace norvane::reports
