// The statements of a savepoint; see Savepoint.h.
#include "store/Savepoint.h"

#include "store/SqliteFailures.h"

#include <QString>
#include <sqlite3.h>

namespace norvane::store
{

Savepoint::Savepoint(sqlite3* connection) : m_connection(connection)
{
    run("SAVEPOINT steps");
}

Savepoint::~Savepoint()
{
    if (m_kept)
        return;
    sqlite3_exec(m_connection, "ROLLBACK TO steps", nullptr, nullptr, nullptr);
    sqlite3_exec(m_connection, "RELEASE steps", nullptr, nullptr, nullptr);
}

void Savepoint::keep()
{
    run("RELEASE steps");
    m_kept = true;
}

void Savepoint::run(const char* sql) const
{
    if (sqlite3_exec(m_connection, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        failWithSqlite(m_connection, QString::fromUtf8(sqlite3_db_filename(m_connection, "main")));
}

} // namespace norvane::store
