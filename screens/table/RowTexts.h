// What a filter looks for in a row.
#pragma once

#include "screens/table/TableColumns.h"
#include "store/engine/BoundQuery.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace norvane::screens
{

/// Joins the texts of a row's columns, for many rows. Left out is what says that there is nothing: zeros, "0
/// Not used" and yes/no; there are choices for these.
class RowTexts
{
public:
    explicit RowTexts(const TableColumns& columns);

    /// Of the current row of @p query, which has the columns after its first value. Lives until the next one.
    [[nodiscard]] const std::string& of(store::BoundQuery& query);

private:
    void append(std::size_t column, const store::Value& value);
    void appendNumber(const TableColumn& column, const store::Value& value);

    const TableColumns& m_columns;
    /// The entries of lists, which would take long to look for.
    std::vector<std::unordered_map<std::int64_t, std::string>> m_entries;
    std::string m_text;
};

} // namespace norvane::screens
