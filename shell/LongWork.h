// Keeps the main window responsive during long work started by a menu entry.
#pragma once

#include "ui/EventTurns.h"
#include "ui/WaitPointer.h"

namespace norvane::shell
{

class FrmMain;

/// While it lives, the wait pointer is shown and the main window can be painted and moved. Its menu and child
/// windows are disabled, since a screen would wait for the database that the work holds. A close of the
/// window happens after the work.
class LongWork
{
public:
    explicit LongWork(FrmMain& main);
    ~LongWork();
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;

    /// Lets events run, but only every few milliseconds, so that every record may call it.
    void letEventsRun();

private:
    ui::WaitPointer m_pointer;
    FrmMain& m_main;
    ui::EventTurns m_turns{std::chrono::milliseconds(0)}; ///< the window greys its menu at once
};

} // namespace norvane::shell
