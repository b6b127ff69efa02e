// Storing records: the statements that insert, change and delete one row.
#pragma once

#include "store/engine/Connection.h"
#include "store/engine/PreparedStatement.h"

#include <map>
#include <memory>
#include <vector>

namespace norvane::store
{

/// Writes records of one shape. The statements are prepared once; a change names only the fields that are
/// really different, so that a walk that stores what is there already writes nothing, and an index is touched
/// only with its key.
class RowWriter
{
public:
    RowWriter(Connection& connection, std::shared_ptr<const TableShape> shape);

    /// @return the row id of the new row. @throws RuntimeFailure with Failure::DuplicateKey,
    /// Failure::RequiredFieldIsNull and what the engine reports.
    std::int64_t insert(const std::vector<Value>& values);
    /// @throws RuntimeFailure with Failure::DuplicateKey, Failure::RequiredFieldIsNull,
    /// Failure::RecordDeleted if the row was deleted, and what the engine reports.
    void update(std::int64_t rowId, const std::vector<Value>& before, const std::vector<Value>& after);
    /// @throws RuntimeFailure with Failure::RecordDeleted if the row was deleted, and what the engine
    /// reports.
    void remove(std::int64_t rowId);

private:
    /// Two equal stages in one transaction mean that no row was deleted between them.
    struct Stage {
        std::int64_t transaction = 0;
        std::int64_t retirements = 0;
        bool operator==(const Stage&) const = default;
    };

    [[nodiscard]] Stage stage() const;
    [[nodiscard]] std::unique_ptr<PreparedStatement> prepare(const std::string& sql) const;
    /// @p rowId is the SQL of the new row's id; empty for one that follows the highest in use.
    [[nodiscard]] std::string insertSql(const std::string& rowId) const;
    [[nodiscard]] PreparedStatement& insertStatement();
    [[nodiscard]] std::string updateSql(const std::vector<int>& fields) const;
    PreparedStatement& updateOf(const std::vector<int>& fields);
    void checkRequired(const std::vector<Value>& values) const;
    [[noreturn]] void failGone() const;

    Connection& m_connection;
    std::shared_ptr<const TableShape> m_shape;
    std::vector<int> m_required;
    std::unique_ptr<PreparedStatement> m_insert;
    std::unique_ptr<PreparedStatement> m_insertBehind;
    Stage m_added; ///< when the last row was added
    std::unique_ptr<PreparedStatement> m_remove;
    std::map<std::vector<int>, std::unique_ptr<PreparedStatement>> m_updates;
};

} // namespace norvane::store
