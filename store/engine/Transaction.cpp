// Bulk work in one go; see Transaction in Database.h.
#include "platform/RuntimeFailure.h"
#include "store/engine/Database.h"
#include "store/engine/DatabasePrivate.h"
#include "store/engine/SqliteFailures.h"

#include <QtGlobal>
#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{

void Database::Private::beginTransaction()
{
    // Takes the lock immediately, which waits for another program. A reader that starts writing later would
    // be refused without waiting.
    if (m_depth == 0 && sqlite3_exec(connection(), "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK)
        failWithSqlite(connection(), m_path);
    if (m_depth == 0)
        ++m_transactions;
    ++m_depth;
}

bool Database::Private::endTransaction()
{
    return --m_depth == 0;
}

bool Database::Private::inTransaction() const
{
    return sqlite3_get_autocommit(connection()) == 0;
}

void Database::Private::commit()
{
    // A full disk or a device fault can have ended the transaction already.
    if (!inTransaction()) {
        throw RuntimeFailure(Failure::DeviceIo,
                             u"The database %1 could not keep what was stored."_s.arg(m_path));
    }
    if (sqlite3_exec(connection(), "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK)
        failWithSqlite(connection(), m_path);
}

void Database::Private::rollBackQuietly() noexcept
{
    if (inTransaction())
        sqlite3_exec(connection(), "ROLLBACK", nullptr, nullptr, nullptr);
}

Transaction::Transaction(Database& database) : m_database(database)
{
    m_database.d->beginTransaction();
}

Transaction::~Transaction()
{
    try {
        commit();
    } catch (const RuntimeFailure& failure) {
        // A destructor may not throw: another failure may be passing. Callers that must know that the work
        // was stored call commit().
        qWarning("%s", failure.what());
    }
}

void Transaction::commit()
{
    if (!m_open)
        return;
    m_open = false;
    if (!m_database.d->endTransaction())
        return;
    try {
        m_database.d->commit();
    } catch (const RuntimeFailure&) {
        m_database.d->rollBackQuietly();
        throw;
    }
}

void Transaction::rollBack()
{
    if (!m_open)
        return;
    m_open = false;
    [[maybe_unused]] const bool outermost = m_database.d->endTransaction();
    Q_ASSERT(outermost);
    m_database.d->rollBackQuietly();
}

bool Transaction::isOpen() const
{
    return m_open && m_database.d->inTransaction();
}

} // namespace norvane::store
