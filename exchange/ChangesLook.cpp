// See ChangesLook.h.
#include "exchange/ChangesLook.h"

#include <QCoreApplication>

namespace norvane::exchange
{

FoundChanges findChanges(const ApplicationValues& values, const std::function<bool()>& goOn)
{
    try {
        return {unsentChanges(values, goOn)};
    } catch (const RuntimeFailure& failure) {
        return {{}, failure};
    }
}

void ChangesLook::look(const ApplicationValues& values)
{
    stop();
    m_goesOn = true;
    m_isLooking = true;
    m_thread = std::thread([this, values] { run(values); });
}

void ChangesLook::stop()
{
    m_goesOn = false;
    m_isLooking = false;
    if (m_thread.joinable())
        m_thread.join();
    QCoreApplication::removePostedEvents(&m_receiver);
}

void ChangesLook::run(const ApplicationValues& values)
{
    const FoundChanges result = findChanges(values, [this] { return m_goesOn.load(); });
    if (m_goesOn) {
        QMetaObject::invokeMethod(
            &m_receiver, [this, result] { found(result); }, Qt::QueuedConnection);
    }
}

void ChangesLook::found(const FoundChanges& found)
{
    m_isLooking = false;
    m_take(found);
}

} // namespace norvane::exchange
