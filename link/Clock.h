// The modem's waits read this clock. It is passed in, so that tests need not wait real seconds.
#pragma once

namespace norvane::link
{

/// The time of day, waiting, and the pending events.
class Clock
{
public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    /// Seconds since the last midnight, with fractions.
    [[nodiscard]] virtual double secondsSinceMidnight() = 0;
    /// Lets a moment pass without handling events.
    virtual void pause() = 0;
    /// Handles the window events that are pending.
    virtual void yieldEvents() = 0;
};

} // namespace norvane::link
