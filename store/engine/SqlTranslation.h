// Screens and utilities write statements in the words of the former database engine; this makes SQLite's of
// them.
#pragma once

#include <QString>

namespace norvane::store
{

/// A statement translated: "delete * from x" loses its star, True is -1, texts may be in double quotes, "&"
/// joins texts, "#12/31/2003#" is a day, "select top n" becomes a limit, "like" takes the wildcards * and ?.
/// Names in square brackets are unchanged.
struct TranslatedSql {
    QString sql;
    /// The same with the row id of its only table as a further, last column, for a plain choice of records
    /// whose rows may be edited; empty if the statement joins, groups or counts.
    QString withRowId;
    bool changesRecords = false; ///< it deletes, updates or inserts
    QString deletesFrom{};       ///< the table that it deletes from; empty for any other statement
    bool deletesAll = false;     ///< and all of its records
};

[[nodiscard]] TranslatedSql translateSql(const QString& statement);

/// The table if @p statement is only a name ("PLUDATA", "[PLUDATA]"); empty for a statement.
[[nodiscard]] QString loneTableName(const QString& statement);

} // namespace norvane::store
