// Choices of records by what they hold in a column: "Group is 3 Drinks", "no price".
#pragma once

#include "screens/table/TableColumns.h"
#include "store/engine/Value.h"

#include <functional>
#include <string>
#include <vector>

namespace norvane::screens
{

/// A condition that records meet or do not.
struct TableChoice {
    QString caption; ///< within its column: "3 Drinks", "has a price"
    std::string sql; ///< a question mark for each of the values
    std::vector<store::Value> values;
    /// Keys that are looked up when the choice is made; their list, in JSON, is a further question mark.
    std::function<std::vector<store::Value>()> keys = {};
};

/// The choices of one column.
struct ColumnChoices {
    QString label; ///< of the column
    QVector<TableChoice> choices;
};

/// For each column what it can be filtered by. PLUs can also be chosen by what is not in a column of theirs:
/// whether they are on a key, and whether they were sold in the last 90 days before @p today.
[[nodiscard]] QVector<ColumnChoices> choicesOf(const store::Database& database, const TableSource& source,
                                               QDate today);

/// The choice of the records that the registers do not have as they are here.
/// @param keys of these records, as they are when the choice is made
[[nodiscard]] ColumnChoices choiceOfUnsent(const TableSource& source,
                                           std::function<std::vector<store::Value>()> keys);

/// A list of keys for SQL's json_each().
[[nodiscard]] store::Value keysAsJson(const std::vector<store::Value>& keys);

} // namespace norvane::screens
