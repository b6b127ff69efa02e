// The wait pointer during long work.
#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace norvane::ui
{

/// Shows the wait pointer while it lives; a failure ends it, too.
class WaitPointer
{
public:
    WaitPointer() { QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor)); }
    ~WaitPointer() { QGuiApplication::restoreOverrideCursor(); }
    WaitPointer(const WaitPointer&) = delete;
    WaitPointer& operator=(const WaitPointer&) = delete;
};

} // namespace norvane::ui
