// How the columns of a register record map to the fields of a table: one list of columns for each register
// file, read by RecordReader in one direction and by RecordWriter in the other. The same list serves both
// directions.
#pragma once

#include "records/Column.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace norvane::records
{

/// One column, or columns that come again and again with a number in their fields' names.
struct ColumnGroup {
    template <std::convertible_to<Column> OneColumn>
    ColumnGroup(OneColumn column) : columns{std::move(column)}
    {
    }
    ColumnGroup(std::vector<Column> made) : columns(std::move(made)) {}

    std::vector<Column> columns;
};

/// The columns in turn for 1, then for 2, up to @p times; the number takes the place of "*" in the fields'
/// names.
[[nodiscard]] ColumnGroup numbered(int times, const std::vector<Column>& columns);

/// So many bytes of a field of hexadecimal digits, each a column of @p width digits.
[[nodiscard]] ColumnGroup hexBytes(std::size_t bytes, std::size_t width, const char* field);

/// The columns of the records with certain numbers, counted from 1.
struct ColumnSet {
    ColumnSet(std::vector<int> recordNumbers, const std::vector<ColumnGroup>& groups);

    std::vector<int> records; ///< empty for all records that no other set names
    std::vector<Column> columns;
};

/// All columns of a register file.
struct RecordLayout {
    RecordLayout(std::string numberField, const std::vector<ColumnGroup>& groups,
                 const std::vector<ColumnSet>& others = {});

    /// Place in the sets of the columns of a record.
    [[nodiscard]] std::size_t setOf(std::int64_t record) const;

    /// Field that takes the number of the line, from 1; empty for none.
    std::string lineNumberField;
    std::vector<ColumnSet> sets; ///< the usual one first
};

} // namespace norvane::records
