// Pending window events during long work.
#pragma once

#include <QEventLoop>

#include <chrono>

namespace norvane::ui
{

/// Spaces out the turns in which long work lets events run: windows are painted before a user notices a
/// delay, and the work may ask at every record.
class EventTurns
{
public:
    /// Too short to notice, and long enough for about a thousand records.
    static constexpr std::chrono::milliseconds between{15};

    /// @param untilFirst the time from now to the first turn.
    explicit EventTurns(std::chrono::milliseconds untilFirst) : m_next(Clock::now() + untilFirst) {}

    /// Whether the last turn, or the beginning of the work, is long enough ago.
    [[nodiscard]] bool isDue() const { return Clock::now() >= m_next; }
    /// Lets pending events run.
    void run(QEventLoop::ProcessEventsFlags which = QEventLoop::AllEvents);

private:
    using Clock = std::chrono::steady_clock;

    Clock::time_point m_next;
};

} // namespace norvane::ui
