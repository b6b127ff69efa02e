// See EventTurns.h.
#include "ui/EventTurns.h"

#include <QCoreApplication>

namespace norvane::ui
{

void EventTurns::run(QEventLoop::ProcessEventsFlags which)
{
    QCoreApplication::processEvents(which);
    m_next = Clock::now() + between;
}

} // namespace norvane::ui
