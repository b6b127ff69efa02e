// A statement of SQLite that takes and gives the store's values.
#pragma once

#include "store/engine/Definitions.h"
#include "store/engine/QuotedName.h"
#include "store/engine/Value.h"

#include <QString>

#include <memory>
#include <optional>
#include <string>

struct sqlite3;
struct sqlite3_stmt;
struct sqlite3_value;

namespace norvane::store
{

/// Prepared once and run any number of times. SQLiteCpp opens and closes the connection, but its statements
/// return every column as an object that shares the statement, which makes a walk over wide records a quarter
/// slower; so statements use SQLite's own interface.
class PreparedStatement
{
public:
    /// @p what names the table or query in failures. @throws RuntimeFailure with Failure::UnknownNameInQuery
    /// for a faulty statement.
    PreparedStatement(sqlite3* handle, const std::string& sql, QString what);

    /// Parameters count from 1. A bound text must remain unchanged until the statement has run.
    void bind(int parameter, const Value& value);
    void bind(int parameter, std::int64_t value);
    /// The same for a parameter that not every variant of a statement has.
    template <typename T>
    void bindIfUsed(int parameter, const T& value)
    {
        if (parameter <= parameterCount())
            bind(parameter, value);
    }
    [[nodiscard]] int parameterCount() const;

    /// @return false if there is no further row. @throws RuntimeFailure as the engine reports.
    bool step();
    /// Ends the run, so that the file is not held locked by it.
    void reset() noexcept;
    /// Runs a statement that returns no rows. @return the number of rows touched.
    qint64 run();

    /// Columns count from 0. @p type is the field's; without one the value is of the kind that was stored.
    void read(int column, std::optional<FieldType> type, Value& value);
    [[nodiscard]] std::int64_t whole(int column);
    [[nodiscard]] QString text(int column);
    /// As the engine holds it; valid until the next step.
    [[nodiscard]] sqlite3_value* stored(int column);

    [[nodiscard]] int columnCount() const;
    [[nodiscard]] QString columnName(int column) const;
    /// The table and the field that a column comes from, empty for an expression.
    [[nodiscard]] QString originTable(int column) const;
    [[nodiscard]] QString originField(int column) const;
    /// Whether running it leaves the file as it is.
    [[nodiscard]] bool onlyReads() const;

private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const noexcept;
    };
    [[noreturn]] void fail();
    void check(int result);
    void bindDay(int parameter, QDate day);

    sqlite3* m_handle;
    QString m_what;
    std::unique_ptr<sqlite3_stmt, Finalize> m_statement;
    QDate m_day; ///< the day bound last, and its text
    std::string m_dayText;
};

/// Resets a statement at the end of a scope, also when a failure passes through.
class StatementRun
{
public:
    explicit StatementRun(PreparedStatement& statement) : m_statement(statement) {}
    ~StatementRun() { m_statement.reset(); }
    StatementRun(const StatementRun&) = delete;
    StatementRun& operator=(const StatementRun&) = delete;

private:
    PreparedStatement& m_statement;
};

} // namespace norvane::store
