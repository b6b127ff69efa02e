// Bulk work in one go; see Transaction in Database.h.
#include "platform/RuntimeFailure.h"
#include "store/Database.h"
#include "store/DatabasePrivate.h"
#include "store/SqliteFailures.h"

#include <QtGlobal>
#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{

void Database::Private::beginTransaction()
{
    // The lock is taken at the start: a reader that wants to write later can be refused at once, without the
    // wait that the user would rather have.
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

void Database::Private::commit()
{
    // A full disk or a device fault can have ended the transaction already.
    if (sqlite3_get_autocommit(connection()) != 0) {
        throw RuntimeFailure(Failure::DeviceIo,
                             u"The database %1 could not keep what was stored."_s.arg(m_path));
    }
    if (sqlite3_exec(connection(), "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK)
        failWithSqlite(connection(), m_path);
}

void Database::Private::rollBackQuietly() noexcept
{
    if (sqlite3_get_autocommit(connection()) == 0)
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
        // Another failure may be on its way through here and is the one to show. Work that must be known to
        // be kept calls commit() itself.
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

} // namespace norvane::store
