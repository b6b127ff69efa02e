// All records of a table as lines for a spreadsheet.
#pragma once

#include "articles/TableSheet.h"
#include "reports/data/ReportData.h"
#include "store/engine/Database.h"

#include <functional>
#include <vector>

namespace norvane::articles
{

/// A column of a file with a heading of its own.
struct ExportedColumn {
    const SheetColumn& column;
    QString heading;
};

/// In the order of their numbers, sales in that of their collection, without title and date.
/// @throws RuntimeFailure as the database reports.
[[nodiscard]] reports::ReportData exportedSheet(store::Database& database, const TableSheet& sheet);

/// The same of rows that are chosen elsewhere. @param valueAt what is stored in a row, and a column of
/// @p columns; called twice for each, row after row
[[nodiscard]] reports::ReportData
exportedRows(const std::vector<ExportedColumn>& columns, int rows,
             const std::function<const store::Value&(int row, std::size_t column)>& valueAt);

} // namespace norvane::articles
