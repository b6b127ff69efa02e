// Switches the triggers of the file off for work that does their job itself.
#pragma once

#include <sqlite3.h>

namespace norvane::store
{

/// While it lives, changes by this connection run no trigger. No other connection can change anything
/// meanwhile as long as a transaction is open around it.
class TriggersAtRest
{
public:
    explicit TriggersAtRest(sqlite3* handle) : m_handle(handle) { set(0); }
    ~TriggersAtRest() { set(1); }
    TriggersAtRest(const TriggersAtRest&) = delete;
    TriggersAtRest& operator=(const TriggersAtRest&) = delete;

private:
    void set(int work) { sqlite3_db_config(m_handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, work, nullptr); }

    sqlite3* m_handle;
};

} // namespace norvane::store
