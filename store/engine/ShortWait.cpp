// See ShortWait.h.
#include "store/engine/ShortWait.h"

#include "store/engine/Connection.h"
#include "store/engine/DatabaseFile.h"

#include <sqlite3.h>

namespace norvane::store
{
namespace
{

constexpr int shortMilliseconds = 400;

} // namespace

ShortWait::ShortWait(Database& database) : m_connection(connectionOf(database))
{
    sqlite3_busy_timeout(m_connection.handle(), shortMilliseconds);
}

ShortWait::~ShortWait()
{
    sqlite3_busy_timeout(m_connection.handle(), busyMilliseconds);
}

} // namespace norvane::store
