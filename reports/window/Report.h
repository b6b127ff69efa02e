// The report control of a form: it runs reports into a preview window or straight to the printer.
#pragma once

#include "reports/window/Printing.h"
#include "reports/window/ReportMaker.h"

#include <QPointer>

#include <memory>
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

    /// Runs @p request into a preview that follows its layout each time it is saved. A layout with mistakes
    /// opens a preview that lists them.
    void runAndFollow(ReportRequest request);

private:
    void deliver(ReportData report, ReportRequest request, Destination destination);
    PreviewWindow& preview(ReportData report, ReportRequest request);

    QWidget& m_window;
    Boxes& m_boxes;
    Runner m_runner;
    PrinterSource m_findPrinter;
    bool m_isRunning = false;
    std::shared_ptr<RecordCache> m_records;
    std::vector<QPointer<PreviewWindow>> m_previews;
};

} // namespace norvane::reports
