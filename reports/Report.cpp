// From a form's settings to a preview or to paper; see Report.h.
#include "reports/Report.h"

#include "paper/DefaultPrinter.h"
#include "platform/Boxes.h"
#include "platform/RuntimeFailure.h"
#include "reports/RunProgress.h"

#include <QPrinter>
#include <QScopedValueRollback>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{

Report::Report(QWidget& window, Boxes& boxes, Runner runner)
    : m_window(window), m_boxes(boxes), m_runner(std::move(runner)), m_findPrinter(paper::defaultPrinter)
{
}

Report::~Report() = default;

void Report::setDataFile(int index, const QString& path)
{
    if (index == 0)
        m_request.dataFile = path;
}

void Report::run()
{
    // Events run during a long report; a second press of its button must not start it again.
    if (m_isRunning)
        return;
    const QScopedValueRollback running(m_isRunning, true);
    const auto tell = [this](const QString& text) {
        m_boxes.message(text, u"Report Error"_s, BoxIcon::Critical);
    };
    try {
        if (auto report = runnerResult())
            deliver(std::move(*report));
    } catch (const ReportError& error) {
        tell(error.text());
    } catch (const RuntimeFailure& failure) {
        tell(failure.text());
    }
}

/// Nothing when the user cancelled.
std::optional<ReportData> Report::runnerResult()
{
    RunProgress progress(m_window);
    ReportRequest request = m_request;
    request.now = QDateTime::currentDateTime();
    try {
        return m_runner(request, [&progress] { return progress.goOn(); });
    } catch (const ReportError&) {
        if (progress.isCancelled())
            return std::nullopt;
        throw;
    }
}

/// Preview and printing are not built yet.
void Report::deliver(ReportData /*report*/) {}

} // namespace norvane::reports
