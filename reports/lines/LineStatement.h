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

/// The join by which the lines of @p source can be put in order without their sums: each line is made by its
/// key, and neither order nor conditions need more than the records that are found by it. @return nullptr
/// where one statement has to do it all.
[[nodiscard]] const Join* recordJoinOf(const LineSource& source, const std::vector<Join>& joins,
                                       const Condition& condition);

/// A statement for the rows that makeLineStatement() adds up where nothing is joined: the fields of @p
/// source, those that are keys by value.
[[nodiscard]] LineStatement makeRowStatement(const LineSource& source, const Condition& condition,
                                             const std::string& rows);

/// A statement for the records of such a join in the order of the lines: the key, and then the fields of
/// @p source that are not of its own table, in the order of their slots. @param others are keys without a
/// record, which have a place, too.
[[nodiscard]] LineStatement makeRecordStatement(const LineSource& source, const std::vector<Join>& joins,
                                                const std::vector<store::Value>& others);

} // namespace norvane::reports
