// See Printing.h.
#include "reports/Printing.h"

#include "paper/DefaultPrinter.h"
#include "reports/PagedReport.h"
#include "reports/ReportRun.h"

#include <QPrinter>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{

QString printReport(const ReportData& report, bool showsCharts, const PrinterFinder& findPrinter,
                    const KeepGoing& keepGoing)
{
    const std::unique_ptr<QPrinter> printer = findPrinter();
    if (!printer) {
        throw ReportError(
            u"There is no printer to print on. Choose a default printer in the system's settings, "
            "or save the report as a file."_s);
    }
    printer->setDocName(report.heading.title);
    if (!paintReport(report, showsCharts, *printer, keepGoing) || !paper::isThere(*printer))
        throw ReportError(u"The printer %1 does not print. Is it still there?"_s.arg(printer->printerName()));
    return printer->printerName();
}

} // namespace norvane::reports
