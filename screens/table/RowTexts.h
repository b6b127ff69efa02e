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
    /// @param columns must outlive it
    explicit RowTexts(const TableColumns& columns);

    /// Begins a statement that reads the row id and the columns with a text.
    [[nodiscard]] std::string select(const QString& table) const;
    /// Of the current row of such a query. Lives until the next one.
    [[nodiscard]] const std::string& of(store::BoundQuery& query);

private:
    void append(std::size_t column, const store::Value& value);
    void appendNumber(const TableColumn& column, const store::Value& value);

    std::vector<const TableColumn*> m_columns;
    /// For each the entries of lists, which would take long to look for.
    std::vector<std::unordered_map<std::int64_t, std::string>> m_entries;
    std::string m_text;
};

} // namespace norvane::screens
