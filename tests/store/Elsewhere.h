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

/// Another program in the middle of reading: nobody can store anything until it goes.
class ReadingElsewhere
{
public:
    explicit ReadingElsewhere(const QString& databasePath)
    {
        sqlite3_open(databasePath.toUtf8().constData(), &m_connection);
        EXPECT_EQ(sqlite3_exec(m_connection, "begin; select count(*) from sqlite_schema", nullptr, nullptr,
                               nullptr),
                  SQLITE_OK)
            << sqlite3_errmsg(m_connection);
    }
    ~ReadingElsewhere() { sqlite3_close(m_connection); }
    ReadingElsewhere(const ReadingElsewhere&) = delete;
    ReadingElsewhere& operator=(const ReadingElsewhere&) = delete;

private:
    sqlite3* m_connection = nullptr;
};

} // namespace norvane::test
