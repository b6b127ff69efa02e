// All records of a table as lines for a spreadsheet.
#pragma once

#include "articles/TableSheet.h"
#include "reports/data/ReportData.h"
#include "store/engine/Database.h"

namespace norvane::articles
{

/// In the order of their numbers, sales in that of their collection, without title and date.
/// @throws RuntimeFailure as the database reports.
[[nodiscard]] reports::ReportData exportedSheet(store::Database& database, const TableSheet& sheet);

} // namespace norvane::articles
