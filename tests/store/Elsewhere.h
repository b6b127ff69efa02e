// Another program at a database: it knows nothing of the store.
#pragma once

#include <gtest/gtest.h>
#include <QString>
#include <sqlite3.h>

namespace norvane::test
{

inline void runElsewhere(const QString& databasePath, const char* sql)
{
    sqlite3* connection = nullptr;
    ASSERT_EQ(sqlite3_open(databasePath.toUtf8().constData(), &connection), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(connection, sql, nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(connection);
    sqlite3_close(connection);
}

} // namespace norvane::test
