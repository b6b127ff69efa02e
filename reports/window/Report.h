// The report control: what a form sets and runs. A report goes to a preview window or straight to the
// printer.
#pragma once

#include "reports/lines/ReportRun.h"
#include "reports/window/Printing.h"

#include <QPointer>

#include <functional>
#include <optional>
#include <vector>

class QWidget;

namespace norvane
{
class Boxes;
}

namespace norvane::reports
{

class PreviewWindow;

/// Where a report is shown.
enum class Destination {
    Window, ///< a preview; each run opens another
    Printer ///< the system's default printer, without a question
};

/// What makes a report's lines: runReport() of the engine.
using Runner = std::function<ReportData(const ReportRequest&, const KeepGoing&)>;

/// One report of a form. Belongs to the form that runs it and must not outlive it. Previews remain open when
/// the form closes; they close with the window that the form belongs to.
class Report
{
public:
    /// @param window the form. Previews are above it and can be used while it is modal.
    Report(QWidget& window, Boxes& boxes, Runner runner = runReport);
    ~Report();
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    /// Path of the layout; found without regard to case.
    void setReportFile(const QString& path) { m_request.reportFile = path; }
    /// Path of the database at @p index; layouts read from number 0 alone.
    void setDataFile(int index, const QString& path);
    /// Heading on the pages, and the preview's title while it has no other title.
    void setReportTitle(const QString& text) { m_request.reportTitle = text; }
    /// Title of the preview alone.
    void setWindowTitle(const QString& text) { m_request.windowTitle = text; }
    /// Replaces the former formula; empty text selects all rows.
    void setSelectionFormula(const QString& text) { m_request.selectionFormula = text; }
    void setDestination(Destination destination) { m_destination = destination; }
    /// The name of the shop as shown on the pages.
    void setCustomer(const QString& name) { m_request.customer = name; }
    /// Prints on what @p source gives in place of the system's default printer.
    void setPrinterSource(PrinterSource source) { m_findPrinter = std::move(source); }

    /// Runs the report as set; periods end today. An error is shown in a box "Report Error". After an error,
    /// or if the user cancelled, everything is as before the run.
    void run();

private:
    [[nodiscard]] std::optional<ReportData> runnerResult();
    void deliver(ReportData report);
    void preview(ReportData report);

    QWidget& m_window;
    Boxes& m_boxes;
    Runner m_runner;
    PrinterSource m_findPrinter;
    ReportRequest m_request;
    Destination m_destination = Destination::Window;
    bool m_isRunning = false;
    std::vector<QPointer<PreviewWindow>> m_previews;
};

} // namespace norvane::reports
