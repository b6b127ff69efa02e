// See CommitOnExit.h.
#include "store/engine/CommitOnExit.h"

#include "platform/RuntimeFailure.h"
#include "store/engine/Connection.h"

#include <QtGlobal>

namespace norvane::store
{

CommitOnExit::CommitOnExit(Database& database) : m_connection(connectionOf(database))
{
    m_connection.beginTransaction();
}

CommitOnExit::~CommitOnExit()
{
    try {
        commit();
    } catch (const RuntimeFailure& failure) {
        // A destructor may not throw: another failure may be passing. Callers that must know that the work
        // was stored call commit().
        qWarning("%s", failure.what());
    }
}

void CommitOnExit::commit()
{
    if (!m_open)
        return;
    m_open = false;
    if (!m_connection.endTransaction())
        return;
    try {
        m_connection.commit();
    } catch (const RuntimeFailure&) {
        m_connection.rollBackQuietly();
        throw;
    }
}

void CommitOnExit::rollBack()
{
    if (!m_open)
        return;
    m_open = false;
    [[maybe_unused]] const bool outermost = m_connection.endTransaction();
    Q_ASSERT(outermost);
    m_connection.rollBackQuietly();
}

bool CommitOnExit::isOpen() const
{
    return m_open && m_connection.inTransaction();
}

} // namespace norvane::store
