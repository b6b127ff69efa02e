// Reading whole records of a table, for every cursor alike.
#pragma once

#include "store/engine/Cursor.h"
#include "store/engine/PreparedStatement.h"
#include "store/engine/Schema.h"

#include <numeric>
#include <string>
#include <vector>

namespace norvane::store
{

/// Ordinals of all fields of a shape.
[[nodiscard]] inline std::vector<int> allOrdinals(const TableShape& shape)
{
    std::vector<int> ordinals(static_cast<std::size_t>(shape.definition().fields.size()));
    std::iota(ordinals.begin(), ordinals.end(), 0);
    return ordinals;
}

/// Begins a statement that reads the fields of these ordinals and the row id: "SELECT ... FROM ...".
[[nodiscard]] inline std::string selectFields(const TableShape& shape, const std::vector<int>& ordinals)
{
    std::string sql = "SELECT ";
    for (const int ordinal : ordinals)
        sql += quotedName(shape.definition().fields.at(ordinal).name) + ", ";
    return sql + "_rowid_ FROM " + quotedName(shape.name());
}

/// Copies the current row of such a statement. @p row keeps the capacity of its texts, and its other fields
/// are unchanged.
inline void readFields(PreparedStatement& statement, const TableShape& shape,
                       const std::vector<int>& ordinals, StoredRow& row)
{
    const auto& fields = shape.definition().fields;
    row.values.resize(static_cast<std::size_t>(fields.size()));
    int column = 0;
    for (const int ordinal : ordinals)
        statement.read(column++, fields.at(ordinal).type, row.values[static_cast<std::size_t>(ordinal)]);
    row.rowId = statement.whole(column);
}

} // namespace norvane::store
