// Choices of records by what they hold in a column: "Group is 3 Drinks", "no price".
#pragma once

#include "screens/table/TableColumns.h"
#include "store/engine/Value.h"

#include <string>
#include <vector>

namespace norvane::screens
{

/// A condition that records meet or do not.
struct TableChoice {
    QString caption; ///< within its column: "3 Drinks", "has a price"
    std::string sql; ///< a question mark for each of the values
    std::vector<store::Value> values;
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

} // namespace norvane::screens
