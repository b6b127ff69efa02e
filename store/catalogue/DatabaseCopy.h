// Copies of a customer's database, and the way back from them.
#pragma once

#include "store/engine/Database.h"

namespace norvane::store
{

enum class CopyOf {
    Everything,
    /// All but the tables that collections fill: they hold years of rows, and a price or a key that went
    /// wrong is not among them.
    Programme
};

/// Copies the database at @p from into a new file at @p to, as of one moment; other programs may have it
/// open. A file at @p to is replaced.
/// @throws RuntimeFailure as Database does for @p from; with Failure::DiskFull, Failure::PathOrFileAccess for
/// @p to, which is then removed.
void copyDatabase(const QString& from, const QString& to, CopyOf what);

/// Replaces the rows of all tables in the copy at @p copy with the rows of the copy; other tables are
/// unchanged. All or nothing. A field that only one of the two has is left out, so a copy of an earlier
/// layout works too.
/// @throws RuntimeFailure as Database does for @p copy, and what the engine reports for @p database.
void restoreTables(Database& database, const QString& copy);

/// The same for @p tables alone, from the database at @p from, which is not written to. Tables that only one
/// of the two has are left out. Fields named in @p omittedFields become null, as in a new record without a
/// default. @return how many rows were taken. @throws RuntimeFailure as restoreTables().
qint64 takeTables(Database& database, const QString& from, const QStringList& tables,
                  const QStringList& omittedFields = {});

/// Creates a new database at @p to if the one at @p damaged can no longer be used: the tables of the copy at
/// @p copy in the current layout, and those that the copy lacks with the rows still readable in the damaged
/// file. The damaged file may be missing. A file at @p to is replaced.
/// @return the tables whose rows are lost. @throws RuntimeFailure as copyDatabase(); @p to is then removed.
[[nodiscard]] QStringList rebuildDatabase(const QString& copy, const QString& damaged, const QString& to);

} // namespace norvane::store
