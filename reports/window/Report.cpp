// Runs a report and shows it in a preview or prints it; see Report.h.
#include "reports/window/Report.h"

#include "paper/DefaultPrinter.h"
#include "platform/TextError.h"
#include "reports/lines/RecordRows.h"
#include "reports/window/PreviewWindow.h"
#include "reports/window/RunProgress.h"

#include <QFileInfo>
#include <QScopedValueRollback>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

void moveToWindow(QWidget& preview, QWidget* window)
{
    const QRect place = preview.geometry();
    preview.setParent(window, preview.windowFlags());
    preview.setGeometry(place);
    preview.show();
}

} // namespace

Report::Report(QWidget& window, Boxes& boxes, Runner runner)
    : m_window(window), m_boxes(boxes), m_runner(std::move(runner)), m_findPrinter(paper::defaultPrinter),
      m_records(std::make_shared<RecordCache>())
{
}

/// A preview is a child of the form's window: a modal form would block any other window. When the form is
/// destroyed, its open previews become children of the window above it, so that they remain open.
Report::~Report()
{
    const QWidget* const form = m_window.window();
    QWidget* const next = form->parentWidget() ? form->parentWidget()->window() : nullptr;
    for (const QPointer<PreviewWindow>& preview : m_previews) {
        if (preview && next)
            moveToWindow(*preview, next);
    }
}

void Report::run(ReportRequest request, Destination destination)
{
    // Events run during a long report; a second press of its button must not start it again.
    if (m_isRunning)
        return;
    const QScopedValueRollback running(m_isRunning, true);
    request.now = QDateTime::currentDateTime();
    request.records = m_records;
    withReportBox(m_boxes, [&] {
        if (auto report = makeReport(m_runner, request, m_window))
            deliver(std::move(*report), std::move(request), destination);
    });
}

void Report::runAndFollow(ReportRequest request)
{
    if (m_isRunning)
        return;
    const QScopedValueRollback running(m_isRunning, true);
    request.now = QDateTime::currentDateTime();
    ReportData report;
    try {
        auto made = makeReport(m_runner, request, m_window);
        if (!made)
            return;
        report = std::move(*made);
    } catch (const TextError&) {
        // The preview shows what is wrong.
        report.heading.title = report.heading.windowTitle = QFileInfo(request.reportFile).fileName();
    }
    preview(std::move(report), std::move(request)).followLayout();
}

void Report::deliver(ReportData report, ReportRequest request, Destination destination)
{
    if (destination == Destination::Window) {
        preview(std::move(report), std::move(request));
        return;
    }
    RunProgress progress(m_window, u"The report is being printed."_s);
    printReport(report, true, m_findPrinter, [&progress] { return progress.goOn(); });
}

PreviewWindow& Report::preview(ReportData report, ReportRequest request)
{
    m_previews.emplace_back(new PreviewWindow(std::move(report), m_boxes, m_findPrinter, m_window.window()));
    m_previews.back()->followLinks(std::move(request), m_runner);
    m_previews.back()->show();
    return *m_previews.back();
}

} // namespace norvane::reports
