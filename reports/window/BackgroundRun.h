// Makes a report in a thread of its own, so that a window can be used meanwhile.
#pragma once

#include "reports/window/ReportMaker.h"

#include <QObject>

#include <atomic>
#include <chrono>
#include <future>

namespace norvane::reports
{

/// One run of a report, from its creation on. It belongs to the window's thread and signals there.
class BackgroundRun : public QObject
{
    Q_OBJECT

public:
    BackgroundRun(const Runner& runner, ReportRequest request, QObject* parent);
    /// Cancels the run and waits for its end.
    ~BackgroundRun() override;

    [[nodiscard]] const ReportRequest& request() const { return m_request; }
    /// Waits for at most @p time. @return whether the run has ended.
    [[nodiscard]] bool isDoneWithin(std::chrono::milliseconds time) const;
    /// Lets the run end, and deletes it then: a database in use by another program may keep it for a while.
    /// It is not done() any more.
    void cancel() { m_isWanted = false; }
    /// The report, once. Waits for it.
    /// @throws what the runner has thrown.
    [[nodiscard]] ReportData take();

Q_SIGNALS:
    void stepChanged(const QString& step);
    /// The run has ended, with a report or a failure.
    void done();

private:
    [[nodiscard]] ReportData make(const Runner& runner);

    ReportRequest m_request;
    std::atomic<bool> m_isWanted = true;
    std::future<ReportData> m_report;
};

} // namespace norvane::reports
