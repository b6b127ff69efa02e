// See SystemClock.h.
#include "link/SystemClock.h"

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
    // Much shorter than any answer of a modem, and long enough to keep the processor idle.
    constexpr unsigned long milliseconds = 10;
    QThread::msleep(milliseconds);
}

void SystemClock::yieldEvents()
{
    QCoreApplication::processEvents();
}

} // namespace norvane::link
