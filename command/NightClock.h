// The time of a night.
#pragma once

#include "command/StopSignals.h"

#include <QDateTime>
#include <QThread>

#include <algorithm>
#include <chrono>
#include <functional>

namespace norvane::command
{

/// Waits in short pieces. @throws RuntimeFailure with Failure::UserInterrupt after a signal.
inline void sleepUnlessStopped(std::chrono::milliseconds left)
{
    constexpr std::chrono::milliseconds piece{100};
    for (; left.count() > 0; left -= piece) {
        stopIfSignalled();
        QThread::msleep(static_cast<unsigned long>(std::min(left, piece).count()));
    }
    stopIfSignalled();
}

/// A test sets another, to let midnight come between two shops.
struct NightClock {
    std::function<QDateTime()> now = [] {
        return QDateTime::currentDateTime();
    };
    std::function<void(std::chrono::milliseconds)> sleep = sleepUnlessStopped;
};

} // namespace norvane::command
