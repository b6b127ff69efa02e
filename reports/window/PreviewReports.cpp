// Which report a preview shows: what its lines open, and its layout when that is saved; see PreviewWindow.h.
#include "platform/RuntimeFailure.h"
#include "reports/data/ReportError.h"
#include "reports/lines/LayoutReader.h"
#include "reports/lines/LineFilters.h"
#include "reports/window/ChartPane.h"
#include "reports/window/HistoryBar.h"
#include "reports/window/LayoutWatch.h"
#include "reports/window/MakingBar.h"
#include "reports/window/MistakePane.h"
#include "reports/window/PageView.h"
#include "reports/window/PreviewWindow.h"
#include "ui/Announcement.h"
#include "ui/StatusLine.h"

#include <QCheckBox>
#include <QDir>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

/// Those of the file, or the failure itself where it has another reason.
std::vector<LayoutMistake> mistakesIn(const QString& path, const QString& failure)
{
    std::vector<LayoutMistake> mistakes;
    try {
        mistakes = layoutMistakes(path);
    } catch (const ReportError&) {
        mistakes.clear(); // without a file
    }
    if (mistakes.empty())
        mistakes.push_back({0, {}, {}, failure});
    return mistakes;
}

} // namespace

void PreviewWindow::followLinks(ReportRequest request, Runner runner)
{
    m_history.current().request = std::move(request);
    m_runner = std::move(runner);
    m_view->offerLinks();
    showHint();
}

void PreviewWindow::showHint()
{
    const HistoryStop& first = m_history.first();
    if (m_watch != nullptr && &first == &m_history.current()) {
        const QString path = QDir::toNativeSeparators(first.request.reportFile);
        m_status->setNotice(u"Follows %1 each time it is saved."_s.arg(path));
    } else if (document().report().link) {
        m_status->setNotice(u"A click on a line, or Ctrl+Down and Enter, opens what it is made of."_s);
    } else {
        m_status->setNotice({});
    }
}

void PreviewWindow::openLink(qsizetype line)
{
    auto request = linkedRequest(m_history.current().request, document().report(), line);
    if (!request)
        return;
    if (m_making->isMaking() && !m_makesLinked)
        m_watch->reportAgain();
    m_makesLinked = true;
    const QString text = u"The report of %1 is being made."_s.arg(request->filters.back().name);
    m_making->make(m_runner, std::move(*request), text, [this](BackgroundRun& run) {
        withReportBox(m_boxes, [&] { showLinked(run); });
        m_way->showHistory(m_history, false);
    });
    m_way->showHistory(m_history, m_making->isMaking());
}

void PreviewWindow::showLinked(BackgroundRun& run)
{
    auto report = std::make_shared<ReportDocument>(run.take());
    m_history.current().place = m_view->readingPlace();
    m_history.follow({run.request(), std::move(report)});
    showCurrent();
}

/// @return whether a report was being made.
bool PreviewWindow::cancelMaking()
{
    if (!m_making->cancel())
        return false;
    m_way->showHistory(m_history, false);
    m_status->setNotice(u"Cancelled."_s);
    return true;
}

void PreviewWindow::followLayout()
{
    const QString& path = m_history.first().request.reportFile;
    m_watch = new LayoutWatch(path, this);
    connect(m_watch, &LayoutWatch::changed, this, &PreviewWindow::makeAgain);
    showHint();
    if (document().report().columnCount() == 0)
        makeAgain();
}

void PreviewWindow::makeAgain()
{
    if (m_making->isMaking() && m_makesLinked)
        return m_watch->reportAgain();
    m_makesLinked = false;
    ReportRequest request = m_history.first().request;
    request.now = QDateTime::currentDateTime();
    m_making->make(m_runner, std::move(request), u"The report is being made again."_s,
                   [this](BackgroundRun& run) { showAgain(run); });
}

void PreviewWindow::showAgain(BackgroundRun& run)
{
    const QString& path = run.request().reportFile;
    std::vector<LayoutMistake> mistakes;
    try {
        replaceFirst(run.take());
    } catch (const ReportError& error) {
        mistakes = mistakesIn(path, error.text());
    } catch (const RuntimeFailure& failure) {
        mistakes.push_back({0, {}, {}, failure.text()});
    }
    m_mistakes->showMistakes(path, mistakes);
    showPanes();
}

/// Reports that were opened from its lines remain as they are.
void PreviewWindow::replaceFirst(ReportData report)
{
    HistoryStop& first = m_history.first();
    m_history.current().place = m_view->readingPlace();
    const auto former = std::exchange(first.document, std::make_shared<ReportDocument>(std::move(report)));
    first.document->pages().layOut(1);
    if (&first == &m_history.current())
        showCurrent();
}

/// From a report that is being made, back is the one that is shown.
void PreviewWindow::go(int steps)
{
    if (m_makesLinked && cancelMaking() && steps < 0)
        return;
    if (!m_history.has(steps))
        return;
    m_history.current().place = m_view->readingPlace();
    m_history.go(steps);
    showCurrent();
}

/// Reports that were shown before are as they were, but for the switch of the charts.
void PreviewWindow::showCurrent()
{
    if (document().showsCharts() != m_chartSwitch->isChecked())
        document().setShowsCharts(m_chartSwitch->isChecked());
    const ReadingPlace place = m_history.current().place;
    document().pages().layOut(1 + static_cast<int>(place.page));
    m_view->setDocument(document());
    m_view->goTo(place);
    m_charts->setDocument(document());
    m_way->showHistory(m_history, false);
    showHeading();
    showHint();
    ui::announce(*m_view, m_view->accessibleName());
    layOutMore();
}

} // namespace norvane::reports
