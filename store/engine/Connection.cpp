// The connection to the engine, its transactions and what it knows of the tables; see Connection.h.
#include "store/engine/Connection.h"

#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "store/engine/DatabaseFile.h"
#include "store/engine/SqliteFailures.h"

#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{

Connection::Connection(const QString& path, IfLocked ifLocked)
    : m_path(existingPath(path)),
      m_sqlite(openDatabaseFile(m_path, ifLocked == IfLocked::Wait ? busyMilliseconds : 0))
{
}

std::shared_ptr<const TableShape> Connection::findShape(const QString& table)
{
    auto& shape = m_shapes[table.toCaseFolded()];
    if (!shape) {
        if (auto definition = Schema(handle()).read(table))
            shape = std::make_shared<const TableShape>(std::move(*definition));
    }
    return shape;
}

std::shared_ptr<const TableShape> Connection::shape(const QString& table)
{
    auto shape = findShape(table);
    if (!shape) {
        throw RuntimeFailure(Failure::UnknownName,
                             u"Item not found: %1 has no table %2."_s.arg(m_path, table));
    }
    return shape;
}

std::int64_t Connection::changes() const
{
    return sqlite3_total_changes64(handle());
}

void Connection::beginTransaction()
{
    // Takes the lock immediately, which waits for another program. A reader that starts writing later would
    // be refused without waiting.
    if (m_depth == 0 && sqlite3_exec(handle(), "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK)
        failWithSqlite(handle(), m_path);
    if (m_depth == 0)
        ++m_transactions;
    ++m_depth;
}

bool Connection::endTransaction()
{
    return --m_depth == 0;
}

bool Connection::inTransaction() const
{
    return sqlite3_get_autocommit(handle()) == 0;
}

void Connection::commit()
{
    // A full disk or a device fault can have ended the transaction already.
    if (!inTransaction()) {
        throw RuntimeFailure(Failure::DeviceIo,
                             u"The database %1 could not keep what was stored."_s.arg(m_path));
    }
    if (sqlite3_exec(handle(), "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK)
        failWithSqlite(handle(), m_path);
}

void Connection::rollBackQuietly() noexcept
{
    if (inTransaction())
        sqlite3_exec(handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

} // namespace norvane::store
