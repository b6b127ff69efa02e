// What the file keeps beside a table that only grows, for quick queries; the definitions do not list it.
#pragma once

#include "store/engine/Definitions.h"

#include <string>
#include <vector>

namespace norvane::store
{

/// A table, index or trigger of the engine and the statement that makes it. The engine stores the statement
/// unchanged, so it can be compared with the one in a file.
struct Companion {
    enum class Kind { Table, Index, Trigger } kind;
    QString name;
    std::string declaration;
};

/// The index by which queries find rows by TableDefinition::searchedField.
[[nodiscard]] Companion searchIndexOf(const TableDefinition& table);

/// A length of time for which a file keeps totals of a sales table, in two tables.
struct TotalsLevel {
    int months;     ///< its length
    QString list;   ///< the times that were added up, each by its first month as yyyy-mm
    QString totals; ///< under the names of the table's fields, numbers as whole numbers or decimal texts; the
                    ///< day is the first of the time
    QString entries; ///< a select of all valid entries of the list
};

/// The totals of months.
[[nodiscard]] TotalsLevel monthLevelOf(const QString& table);
/// The totals of years. An entry is valid only as long as all months of the year are listed.
[[nodiscard]] TotalsLevel yearLevelOf(const QString& table);

/// The two tables of month totals, and the triggers that keep them correct. A month listed in the first table
/// was added up, and its totals are in the second; a month is removed from both together. The triggers of the
/// sales table run for every row of it, so they only look for the month. They are created in this order, and
/// only all together: totals without their triggers could be wrong.
[[nodiscard]] std::vector<Companion> monthCompanionsOf(const TableDefinition& table);

/// The same for years. Their triggers are on the list of months alone: a year is dropped as soon as one of
/// its months is dropped or added up again.
[[nodiscard]] std::vector<Companion> yearCompanionsOf(const TableDefinition& table);

/// The table that holds digests of days (DayDigests) and the triggers that drop the digest of a day with any
/// change of its rows. They are made only all together, as those of the months are.
[[nodiscard]] std::vector<Companion> dayCompanionsOf(const TableDefinition& table);

/// Holds the days, as yyyy-mm-dd, and their digests.
[[nodiscard]] QString dayDigestsName(const QString& table);

/// Whether rows are added up by this field, which then holds a total; otherwise totals are kept by it.
[[nodiscard]] inline bool isAddedUp(const FieldDefinition& field)
{
    return field.type == FieldType::Double;
}

/// The column of a field as a table declares it.
[[nodiscard]] std::string columnDeclaration(const FieldDefinition& field);

} // namespace norvane::store
