// The report control of a form: it runs reports into a preview window or straight to the printer.
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

/// Runs reports for a form, which it must not outlive. Previews remain open when the form closes; they close
/// with the window that the form belongs to.
class Report
{
public:
    /// @param window the form. Previews are above it and can be used while it is modal.
    Report(QWidget& window, Boxes& boxes, Runner runner = runReport);
    ~Report();
    Report(const Report&) = delete;
    Report& operator=(const Report&) = delete;

    /// Prints on what @p source gives in place of the system's default printer.
    void setPrinterSource(PrinterSource source) { m_findPrinter = std::move(source); }

    /// Runs @p request; its time is now, and the window shows its steps. An error is shown in a box "Report
    /// Error". After an error, or if the user cancelled, everything is as before the run.
    void run(ReportRequest request, Destination destination = Destination::Window);

private:
    [[nodiscard]] std::optional<ReportData> runnerResult(ReportRequest request);
    void deliver(ReportData report, Destination destination);
    void preview(ReportData report);

    QWidget& m_window;
    Boxes& m_boxes;
    Runner m_runner;
    PrinterSource m_findPrinter;
    bool m_isRunning = false;
    std::vector<QPointer<PreviewWindow>> m_previews;
};

} // namespace norvane::reports
