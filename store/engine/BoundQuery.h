// A select over the tables of a database with values bound to it, read row by row.
#pragma once

#include "platform/KeepGoing.h"
#include "store/engine/Database.h"
#include "store/engine/Value.h"

#include <exception>
#include <memory>
#include <string>
#include <vector>

namespace norvane
{
class DecimalTotal;
}

namespace norvane::store
{

class PreparedStatement;

/// Rows of a statement in the engine's SQL, in which each "?" is replaced by a bound value: text from a user
/// or a file never becomes part of the statement. A row is not kept after the next one is read, so a long
/// list takes no memory. The database must outlive this object and has one such query at a time.
class BoundQuery
{
public:
    /// @param values in the order of the question marks. @param what names the query in failures.
    /// @param keepGoing is asked some twenty times a second while the engine works, between rows and within a
    /// long one.
    /// @throws RuntimeFailure with Failure::UnknownNameInQuery for a faulty statement or one that would
    /// change the file, Failure::NotOurDatabase when the file is damaged.
    BoundQuery(Database& database, const std::string& sql, std::vector<Value> values, const QString& what,
               KeepGoing keepGoing = {});
    ~BoundQuery();
    BoundQuery(const BoundQuery&) = delete;
    BoundQuery& operator=(const BoundQuery&) = delete;

    /// Goes to the next row; the first call goes to the first row. @return false if there is none.
    /// @throws RuntimeFailure with Failure::NotOurDatabase, Failure::DeviceIo and so on as the engine
    /// reports, and Failure::EngineFailure if it was cancelled.
    bool next();
    [[nodiscard]] bool wasGivenUp() const { return m_givenUp; }

    [[nodiscard]] int columnCount() const;
    /// The column counted from 0, of the kind that is stored. Lives until the next row is asked for.
    [[nodiscard]] const Value& value(int column);
    /// Adds the column of this row as exact_sum() does: null and what is not a number count as 0.
    /// @throws RuntimeFailure with Failure::Overflow for an infinite number.
    void addTo(int column, DecimalTotal& total);

private:
    bool mayGoOn() noexcept;

    Connection& m_connection;
    std::vector<Value> m_values;
    KeepGoing m_keepGoing;
    std::unique_ptr<PreparedStatement> m_statement;
    std::vector<Value> m_row;
    std::int64_t m_askedAt = 0; ///< milliseconds of a steady clock
    bool m_givenUp = false;
    std::exception_ptr m_thrown; ///< by KeepGoing, on its way around the engine
};

} // namespace norvane::store
