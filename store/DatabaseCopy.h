// Copies of a customer's database, and the way back from them.
#pragma once

#include "store/Database.h"

namespace norvane::store
{

enum class CopyOf {
    Everything,
    /// All but the tables that collections fill: they hold years of rows, and a price or a key that went
    /// wrong is not among them.
    Programme
};

/// Copies the database at @p from into a new file at @p to, as it stands at one moment; other programs may
/// have it open. A file at @p to is replaced.
/// @throws RuntimeFailure as Database does for @p from; 61, 75 for @p to, of which nothing is left then.
void copyDatabase(const QString& from, const QString& to, CopyOf what);

/// Gives the tables that the copy at @p copy holds the rows of the copy; tables that it lacks stay. All or
/// nothing. A field that only one of the two has stays out, so a copy of an earlier layout serves too.
/// @throws RuntimeFailure as Database does for @p copy, and what the engine reports for @p database.
void restoreTables(Database& database, const QString& copy);

/// Makes a new database at @p to when the one at @p damaged can no longer be used: the tables of the copy at
/// @p copy in today's layout, and those that the copy lacks with the rows that the damaged file still holds
/// whole. The damaged file may be missing. A file at @p to is replaced.
/// @return the tables whose rows are lost. @throws RuntimeFailure as copyDatabase(); nothing is left then.
[[nodiscard]] QStringList rebuildDatabase(const QString& copy, const QString& damaged, const QString& to);

} // namespace norvane::store
