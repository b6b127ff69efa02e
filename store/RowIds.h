// Row ids that are never given a second time.
#pragma once

#include "store/DatabasePrivate.h"

#include <cstdint>
#include <string>

namespace norvane::store
{

// SQLite gives the row id of a deleted last row to the next new one. A screen that still stands on the
// deleted record would then store its fields over the new one. So the file remembers the highest row id that
// was ever deleted from each table, and a new row gets a higher one. A file of an earlier build begins to
// remember with its first deletion or new row.

/// To be done before rows of @p table are deleted, in one go with the deletion. @p last is the highest of
/// them. @throws RuntimeFailure as the engine reports.
void retireRowIds(Database::Private& database, const TableShape& table, std::int64_t last);
/// The same before any number of rows are deleted.
void retireAllRowIds(Database::Private& database, const TableShape& table);

/// The SQL of a row id that no row of @p table has or ever had. @throws RuntimeFailure as the engine reports.
[[nodiscard]] std::string unusedRowId(Database::Private& database, const TableShape& table);

} // namespace norvane::store
