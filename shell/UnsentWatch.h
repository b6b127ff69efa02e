// The line of the overview that takes longer to read than a window may wait.
#pragma once

#include "exchange/ChangesLook.h"
#include "shell/ShopOverview.h"

#include <QObject>

namespace norvane::shell
{

/// Looks for what the registers do not have yet, and only if a file in the customer's folder has changed
/// since the last time.
class UnsentWatch : public QObject
{
    Q_OBJECT

public:
    explicit UnsentWatch(QObject* parent) : QObject(parent) {}

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
    State m_reading;
    OverviewLine m_line;
    exchange::ChangesLook m_look{[this](const exchange::FoundChanges& changes) {
        m_known = m_reading;
        m_line = unsentLine(m_known.customerPath, changes);
        Q_EMIT found();
    }};
};

} // namespace norvane::shell
