// The SQL statement that reads the lines of a report.
#pragma once

#include "reports/lines/ReportLayout.h"

#include <string>
#include <vector>

namespace norvane::reports
{

/// A statement whose columns are the fields of a source in the order of their slots. Sums are returned as
/// texts of exact decimals.
struct LineStatement {
    std::string sql;
    std::vector<store::Value> values; ///< one for each question mark
};

/// @param condition names only tables that the report reads. @param rows replaces the report's table if it is
/// not empty: a select in brackets with the same field names, already restricted by the condition.
[[nodiscard]] LineStatement makeLineStatement(const LineSource& source, const std::vector<Join>& joins,
                                              const Condition& condition, const std::string& rows = {});

} // namespace norvane::reports
