// The wait pointer while something takes its time.
#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace norvane::ui
{

/// Shows the wait pointer for as long as it lives, so that a failure gives the arrow back as well.
class WaitPointer
{
public:
    WaitPointer() { QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor)); }
    ~WaitPointer() { QGuiApplication::restoreOverrideCursor(); }
    WaitPointer(const WaitPointer&) = delete;
    WaitPointer& operator=(const WaitPointer&) = delete;
};

} // namespace norvane::ui
