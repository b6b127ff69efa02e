// See Printing.h.
#include "reports/window/Printing.h"

#include "paper/DefaultPrinter.h"
#include "reports/data/ReportError.h"
#include "reports/files/PagedReport.h"

#include <QDir>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{

namespace
{

/// Qt hides copies and pages below a button at first.
void openOptions(const QPrintDialog& dialog)
{
    const auto buttons = dialog.findChildren<QPushButton*>();
    const auto options = std::ranges::find(buttons, QPrintDialog::tr("&Options >>"), &QPushButton::text);
    if (options != buttons.end())
        (*options)->click();
}

/// A list such as "1,3-5" is sent with the job: the print server selects these pages.
bool isChosenByServer(const QPrintDialog& dialog)
{
    const auto* const list = dialog.findChild<QRadioButton*>(u"pagesRadioButton"_s);
    return list && list->isChecked() && list->isEnabled();
}

PageSpan chosenPages(const QPrinter& printer, PrintedPages pages)
{
    switch (printer.printRange()) {
    case QPrinter::PageRange:
        return {printer.fromPage(), printer.toPage()};
    case QPrinter::CurrentPage:
        return {pages.current, pages.current};
    default:
        return {};
    }
}

} // namespace

std::optional<PrintJob> askForPrint(const PrinterSource& findPrinter, PrintedPages pages, QWidget* parent)
{
    auto printer = findPrinter();
    if (!printer && QPrinterInfo::availablePrinterNames().isEmpty())
        return PrintJob{};
    if (!printer)
        printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    QPrintDialog dialog(printer.get(), parent);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    dialog.setMinMax(1, pages.count);
    dialog.setFromTo(1, pages.count);
    openOptions(dialog);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    const PageSpan span = isChosenByServer(dialog) ? PageSpan() : chosenPages(*printer, pages);
    return PrintJob{std::move(printer), span};
}

void printOn(const PrintJob& job, const ReportData& report, bool showsCharts, const KeepGoing& keepGoing)
{
    if (!job.printer) {
        throw ReportError(
            u"There is no printer to print on. Choose a default printer in the system's settings, "
            "or save the report as a file."_s);
    }
    QPrinter& printer = *job.printer;
    printer.setDocName(report.heading.title);
    if (!paintReport(report, showsCharts, printer, keepGoing, job.pages) || !paper::isThere(printer))
        throw ReportError(u"The printer %1 does not print. Is it still there?"_s.arg(printer.printerName()));
}

void printReport(const ReportData& report, bool showsCharts, const PrinterSource& findPrinter,
                 const KeepGoing& keepGoing)
{
    printOn({findPrinter(), {}}, report, showsCharts, keepGoing);
}

QString sentText(const QPrinter& printer)
{
    if (!printer.outputFileName().isEmpty())
        return u"Saved as %1."_s.arg(QDir::toNativeSeparators(printer.outputFileName()));
    const QString sent = u"Sent to the printer %1"_s.arg(printer.printerName());
    return printer.copyCount() > 1 ? u"%1, %2 copies."_s.arg(sent).arg(printer.copyCount()) : sent + u'.';
}

} // namespace norvane::reports
