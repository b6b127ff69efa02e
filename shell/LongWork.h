// Long work behind a menu entry during which the main window stays alive.
#pragma once

#include "ui/WaitPointer.h"

#include <chrono>

namespace norvane::shell
{

class FrmMain;

/// While it lives, the wait pointer is shown and the main window paints, moves and answers the desktop, but
/// takes no further work: the menu and the child windows are disabled, since a screen would have to wait for
/// the database that the work holds, and a close of the window is put off until the end.
class LongWork
{
public:
    explicit LongWork(FrmMain& main);
    ~LongWork();
    LongWork(const LongWork&) = delete;
    LongWork& operator=(const LongWork&) = delete;

    /// Lets pending events run. May be called for every record: between two real turns it only looks at the
    /// clock.
    void letEventsRun();

private:
    ui::WaitPointer m_pointer;
    FrmMain& m_main;
    std::chrono::steady_clock::time_point m_nextTurn;
};

} // namespace norvane::shell
