// The machine's clock.
#include "link/Clock.h"

#include <QCoreApplication>
#include <QThread>
#include <QTime>

namespace norvane::link
{

double SystemClock::secondsSinceMidnight()
{
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

void SystemClock::pause()
{
    // Short against the shortest answer of a modem, long against a busy loop.
    constexpr unsigned long milliseconds = 10;
    QThread::msleep(milliseconds);
}

void SystemClock::yieldEvents()
{
    QCoreApplication::processEvents();
}

} // namespace norvane::link
