// The engine without the store, for the baselines: the least that could do what is measured.
#pragma once

#include "bench/Ratio.h"

#include <QString>
#include <sqlite3.h>

#include <string_view>

namespace norvane::bench
{

/// A connection that keeps what it stores as safe as ours does. Statements are the caller's to finalize.
class BareDatabase
{
public:
    explicit BareDatabase(const QString& path)
    {
        require(sqlite3_open(path.toUtf8().constData(), &m_database) == SQLITE_OK, "open");
        run("pragma synchronous=full");
    }
    ~BareDatabase() { sqlite3_close(m_database); }
    BareDatabase(const BareDatabase&) = delete;
    BareDatabase& operator=(const BareDatabase&) = delete;

    void run(const char* sql) const
    {
        require(sqlite3_exec(m_database, sql, nullptr, nullptr, nullptr) == SQLITE_OK, sql);
    }
    [[nodiscard]] sqlite3_stmt* prepare(const char* sql) const
    {
        sqlite3_stmt* statement = nullptr;
        require(sqlite3_prepare_v2(m_database, sql, -1, &statement, nullptr) == SQLITE_OK,
                sqlite3_errmsg(m_database));
        return statement;
    }
    /// The first column of the only row.
    [[nodiscard]] double number(const char* sql) const
    {
        sqlite3_stmt* select = prepare(sql);
        require(sqlite3_step(select) == SQLITE_ROW, sql);
        const double result = sqlite3_column_double(select, 0);
        sqlite3_finalize(select);
        return result;
    }

private:
    sqlite3* m_database = nullptr;
};

inline void bindText(sqlite3_stmt* statement, int place, std::string_view text)
{
    sqlite3_bind_text(statement, place, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

/// Empty for null. Valid until the next step.
inline std::string_view columnText(sqlite3_stmt* statement, int place)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, place));
    return text == nullptr ? std::string_view() : text;
}

/// Runs a statement that returns no rows, to be run again.
inline void runOnce(sqlite3_stmt* statement)
{
    require(sqlite3_step(statement) == SQLITE_DONE, "run");
    sqlite3_reset(statement);
}

} // namespace norvane::bench
