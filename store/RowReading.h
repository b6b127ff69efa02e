// Reading whole records of a table, for every cursor alike.
#pragma once

#include "store/Cursor.h"
#include "store/PreparedStatement.h"
#include "store/Schema.h"

#include <string>

namespace norvane::store
{

/// The beginning of a statement that reads the fields of a shape and the row id: "SELECT ... FROM ...". A
/// field for which @p isRead (ordinal) is false is left unread and null, at its place all the same.
template <typename IsRead>
[[nodiscard]] std::string selectFields(const TableShape& shape, IsRead isRead)
{
    std::string sql = "SELECT ";
    for (int ordinal = 0; const auto& field : shape.definition().fields)
        sql += (isRead(ordinal++) ? quotedName(field.name) : std::string("NULL")) + ", ";
    return sql + "_rowid_ FROM " + quotedName(shape.name());
}

/// Takes over the row that such a statement stands on; @p row keeps the room that its texts have.
inline void readFields(PreparedStatement& statement, const TableShape& shape, Row& row)
{
    const auto& fields = shape.definition().fields;
    const int count = static_cast<int>(fields.size());
    row.values.resize(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        statement.read(i, fields.at(i).type, row.values[static_cast<std::size_t>(i)]);
    row.rowId = statement.whole(count);
}

} // namespace norvane::store
