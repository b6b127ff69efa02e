// All PLUs of a customer as lines for a spreadsheet.
#pragma once

#include "reports/data/ReportData.h"
#include "store/engine/Database.h"

namespace norvane::articles
{

/// In the order of their numbers, without title and date. @throws RuntimeFailure as the database reports.
[[nodiscard]] reports::ReportData exportedPlus(store::Database& database);

} // namespace norvane::articles
