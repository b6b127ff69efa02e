// Reports on the printer.
#pragma once

#include "reports/data/KeepGoing.h"
#include "reports/data/ReportData.h"
#include "reports/files/PagedReport.h"

#include <functional>
#include <memory>
#include <optional>

class QPrinter;
class QWidget;

namespace norvane::reports
{

/// A print as the user asked for it; the printer knows the copies.
struct PrintJob {
    std::unique_ptr<QPrinter> printer;
    PageSpan pages;
};

/// What a print is asked about.
struct PrintedPages {
    int count = 0;
    int current = 0; ///< counted from 1, as first
};

/// Finds the printer; null if the system has none to use.
using PrinterSource = std::function<std::unique_ptr<QPrinter>()>;

/// Asks for printer, copies and pages; the printer returned by @p findPrinter is preset.
/// @return nothing if the user cancelled; a job without a printer if the system has none.
[[nodiscard]] std::optional<PrintJob> askForPrint(const PrinterSource& findPrinter, PrintedPages pages,
                                                  QWidget* parent);

/// Prints the pages of @p job.
/// @throws ReportError if there is no printer or it fails, and ReportCancelled; pages painted by then are
/// printed.
void printOn(const PrintJob& job, const ReportData& report, bool showsCharts,
             const KeepGoing& keepGoing = {});

/// Prints all pages on the printer returned by @p findPrinter, without a question.
/// @throws ReportError if there is none or it fails, and ReportCancelled; pages painted by then are printed.
void printReport(const ReportData& report, bool showsCharts, const PrinterSource& findPrinter,
                 const KeepGoing& keepGoing = {});

/// What became of a print, in words for the status bar.
[[nodiscard]] QString sentText(const QPrinter& printer);

} // namespace norvane::reports
