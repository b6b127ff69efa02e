// Row ids that are never given a second time.
#pragma once

#include "store/engine/Connection.h"

#include <cstdint>
#include <string>

namespace norvane::store
{

// SQLite reuses the row id of a deleted last row for the next new one. A screen still on the deleted record
// would then overwrite the new one. So the file remembers the highest row id that was ever deleted from each
// table, and a new row gets a higher one. A file of an earlier build begins to remember with its first
// deletion or new row.

/// To be done before rows of @p table are deleted, in one go with the deletion. @p last is the highest of
/// them. @throws RuntimeFailure as the engine reports.
void retireRowIds(Connection& connection, const TableShape& table, std::int64_t last);
/// The same before any number of rows are deleted.
void retireAllRowIds(Connection& connection, const TableShape& table);

/// The SQL of a row id that no row of @p table has or had before. @throws RuntimeFailure as the engine
/// reports.
[[nodiscard]] std::string unusedRowId(Connection& connection, const TableShape& table);

} // namespace norvane::store
