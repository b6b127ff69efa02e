// See BackgroundRun.h.
#include "reports/window/BackgroundRun.h"

#include <QScopeGuard>

namespace norvane::reports
{

BackgroundRun::BackgroundRun(const Runner& runner, ReportRequest request, QObject* parent)
    : QObject(parent), m_request(std::move(request)),
      m_report(std::async(std::launch::async, [this, runner] { return make(runner); }))
{
}

BackgroundRun::~BackgroundRun()
{
    cancel();
    if (m_report.valid())
        m_report.wait();
}

/// In the thread of the run. What it posts to this object goes with it.
ReportData BackgroundRun::make(const Runner& runner)
{
    const auto post = [this](auto act) {
        QMetaObject::invokeMethod(this, std::move(act), Qt::QueuedConnection);
    };
    const auto end = qScopeGuard([&] { post([this] { m_isWanted ? Q_EMIT done() : deleteLater(); }); });
    ReportRequest request = m_request;
    request.showStep = [&](const QString& step) {
        post([this, step] { Q_EMIT stepChanged(step); });
    };
    return runner(request, [this] { return m_isWanted.load(); });
}

bool BackgroundRun::isDoneWithin(std::chrono::milliseconds time) const
{
    return m_report.wait_for(time) == std::future_status::ready;
}

ReportData BackgroundRun::take()
{
    return m_report.get();
}

} // namespace norvane::reports
