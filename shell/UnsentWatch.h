// The line of the overview that takes longer to read than a window may wait.
#pragma once

#include "shell/ShopOverview.h"

#include <QObject>
#include <QThread>

#include <atomic>
#include <memory>

namespace norvane::shell
{

/// Reads in a thread of its own what the registers do not have yet, and only if a file in the customer's
/// folder has changed since the last time.
class UnsentWatch : public QObject
{
    Q_OBJECT

public:
    explicit UnsentWatch(QObject* parent) : QObject(parent) {}
    /// Waits for a reading to end.
    ~UnsentWatch() override;

    /// The line as it was last read for the chosen customer, or one that says that it is being read. Begins a
    /// reading if it may be outdated.
    [[nodiscard]] OverviewLine line(const ApplicationValues& values);

Q_SIGNALS:
    /// A reading has ended; line() has its result.
    void found();

private:
    /// Of which state of which customer a line is.
    struct State {
        QString customerPath;
        size_t files = 0;
        bool operator==(const State&) const = default;
    };
    [[nodiscard]] static State stateOf(const ApplicationValues& values);
    void begin(const ApplicationValues& values, const State& state);

    State m_known; ///< of m_line
    OverviewLine m_line;
    std::unique_ptr<QThread> m_reading;
    std::atomic<bool> m_goesOn = true;
};

} // namespace norvane::shell
