// Deletes many records of a table: one question, lock, safety copy, one transaction, one line in the log.
#pragma once

#include "screens/table/TableSave.h"

namespace norvane::screens
{

/// Asks first, with No preset, and names the records that others use. Deletes all records with these stored
/// keys or none; those that are gone already are left out.
/// @param keysPerLevel as usesOfKey(). @return what the status bar says.
[[nodiscard]] QString deleteRecords(store::Database& database, const TableInUse& table,
                                    const QStringList& keys, int keysPerLevel, Boxes& boxes);

} // namespace norvane::screens
