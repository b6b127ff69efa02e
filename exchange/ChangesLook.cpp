// See ChangesLook.h.
#include "exchange/ChangesLook.h"

#include "platform/RuntimeFailure.h"

#include <QCoreApplication>

namespace norvane::exchange
{

void ChangesLook::look(const ApplicationValues& values)
{
    stop();
    m_goesOn = true;
    m_thread = std::thread([this, values] { run(values); });
}

void ChangesLook::stop()
{
    m_goesOn = false;
    if (m_thread.joinable())
        m_thread.join();
    QCoreApplication::removePostedEvents(&m_receiver);
}

void ChangesLook::run(const ApplicationValues& values)
{
    try {
        const AllChanges changes = unsentChanges(values, [this] { return m_goesOn.load(); });
        if (m_goesOn)
            QMetaObject::invokeMethod(
                &m_receiver, [this, changes] { m_take(changes); }, Qt::QueuedConnection);
    } catch (const RuntimeFailure&) {
        // Opening a screen or pressing OK reports what is wrong with the database.
        return;
    }
}

} // namespace norvane::exchange
