// A select over the tables of a database with values bound to it, read row by row.
#pragma once

#include "store/Database.h"
#include "store/Value.h"

#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace norvane::store
{

class PreparedStatement;

/// Rows of a statement in the engine's own words, in which each "?" stands for a value handed in: what a user
/// or a file says never becomes part of the statement. Nothing is kept of a row once the next one is asked
/// for, so that a long list takes no room. The database must outlive it, and holds one such query at a time.
class BoundQuery
{
public:
    /// Asked some twenty times a second while the engine works, between rows and within a long one; it may
    /// handle events. @return false to give up.
    using KeepGoing = std::function<bool()>;

    /// @param values in the order of the question marks. @param what names the query in failures.
    /// @throws RuntimeFailure 3061 for a faulty statement or one that would change the file, 3343 when the
    /// file is damaged.
    BoundQuery(Database& database, const std::string& sql, std::vector<Value> values, const QString& what,
               KeepGoing keepGoing = {});
    ~BoundQuery();
    BoundQuery(const BoundQuery&) = delete;
    BoundQuery& operator=(const BoundQuery&) = delete;

    /// Goes to the next row, the first one at the first call. @return false when there is none.
    /// @throws RuntimeFailure 3343, 57 and so on as the engine reports, and 3000 when it was told to give up.
    bool next();
    [[nodiscard]] bool wasGivenUp() const { return m_givenUp; }

    [[nodiscard]] int columnCount() const;
    /// The column counted from 0, of the kind that is stored. Lives until the next row is asked for.
    [[nodiscard]] const Value& value(int column);

private:
    bool mayGoOn() noexcept;

    Database& m_database;
    std::vector<Value> m_values;
    KeepGoing m_keepGoing;
    std::unique_ptr<PreparedStatement> m_statement;
    std::vector<Value> m_row;
    std::int64_t m_askedAt = 0; ///< milliseconds of a steady clock
    bool m_givenUp = false;
    std::exception_ptr m_thrown; ///< by KeepGoing, on its way around the engine
};

} // namespace norvane::store
