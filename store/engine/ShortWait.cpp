// See ShortWait in Database.h.
#include "store/engine/Database.h"
#include "store/engine/DatabaseFile.h"
#include "store/engine/DatabasePrivate.h"

#include <sqlite3.h>

namespace norvane::store
{
namespace
{

constexpr int shortMilliseconds = 400;

} // namespace

ShortWait::ShortWait(Database& database) : m_database(database)
{
    sqlite3_busy_timeout(m_database.d->connection(), shortMilliseconds);
}

ShortWait::~ShortWait()
{
    sqlite3_busy_timeout(m_database.d->connection(), busyMilliseconds);
}

} // namespace norvane::store
