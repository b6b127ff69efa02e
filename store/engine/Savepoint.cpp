// The statements of a savepoint; see Savepoint.h.
#include "store/engine/Savepoint.h"

#include "store/engine/SqliteFailures.h"

#include <QString>
#include <sqlite3.h>

namespace norvane::store
{

Savepoint::Savepoint(sqlite3* handle) : m_handle(handle), m_isOutermost(sqlite3_get_autocommit(handle) != 0)
{
    run("SAVEPOINT steps");
}

Savepoint::~Savepoint()
{
    if (m_kept)
        return;
    // Releasing the outermost savepoint would commit once more. While another program reads, that waits and
    // fails again, and the file would remain locked.
    sqlite3_exec(m_handle, m_isOutermost ? "ROLLBACK" : "ROLLBACK TO steps; RELEASE steps", nullptr, nullptr,
                 nullptr);
}

void Savepoint::keep()
{
    run("RELEASE steps");
    m_kept = true;
}

void Savepoint::run(const char* sql) const
{
    if (sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        failWithSqlite(m_handle, QString::fromUtf8(sqlite3_db_filename(m_handle, "main")));
}

} // namespace norvane::store
