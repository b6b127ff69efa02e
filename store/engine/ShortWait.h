// Shorter waits for a locked file while a user waits.
#pragma once

namespace norvane::store
{

class Connection;
class Database;

/// During its lifetime, work on the database waits less than half a second for a file locked by another
/// program, and then fails with Failure::DatabaseLocked: a window must not freeze after a button was pressed.
class ShortWait
{
public:
    explicit ShortWait(Database& database);
    ~ShortWait();
    ShortWait(const ShortWait&) = delete;
    ShortWait& operator=(const ShortWait&) = delete;

private:
    Connection& m_connection;
};

} // namespace norvane::store
