// The rows of one table on their way back to what they were.
#pragma once

#include "store/engine/Connection.h"
#include "store/engine/PreparedStatement.h"

#include <QStringList>

#include <cstdint>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

namespace norvane::store
{

/// Restores rows from their images. A statement is prepared when the first row needs it.
class TableBack
{
public:
    /// Sets the fields at some places; the statement is prepared when needed.
    using Update = std::pair<const std::vector<std::size_t>, std::optional<PreparedStatement>>;

    /// @param fields of the images
    TableBack(Connection& connection, QString table, QStringList fields)
        : m_connection(connection), m_table(std::move(table)), m_fields(std::move(fields))
    {
    }

    /// What sets the fields that are different. Lives as long as this object.
    [[nodiscard]] Update& updateFor(std::string_view now, std::string_view before);

    /// These throw RuntimeFailure as the engine reports.
    void update(std::int64_t rowId, Update& update, std::string_view before);
    void insert(std::int64_t rowId, std::string_view before);
    void remove(std::int64_t rowId);

private:
    [[nodiscard]] PreparedStatement prepare(const std::string& sql) const;
    [[nodiscard]] PreparedStatement& prepared(Update& update);
    void run(PreparedStatement& statement, const std::vector<std::string_view>& values, std::int64_t rowId);

    Connection& m_connection;
    QString m_table;
    QStringList m_fields;
    std::map<Update::first_type, Update::second_type> m_updates;
    int m_preparedUpdates = 0;
    std::optional<PreparedStatement> m_insert;
    std::optional<PreparedStatement> m_delete;
    // Of one row. Their memory is kept.
    std::vector<std::string_view> m_now;
    std::vector<std::string_view> m_then;
    std::vector<std::size_t> m_different;
    std::vector<Value> m_values;
};

} // namespace norvane::store
