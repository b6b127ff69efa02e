// Stores the changes that a comparison found.
#pragma once

#include "articles/SheetComparison.h"
#include "platform/KeepGoing.h"

namespace norvane::articles
{

/// Stores all changes or none. New records are filled as the screen fills one.
/// @throws RuntimeFailure with Failure::DuplicateKey, Failure::RecordDeleted if the records are no longer
/// those that were compared, Failure::UserInterrupt when @p keepGoing returns false, and as the database
/// reports.
void applySheetChanges(store::Database& database, const SheetComparison& comparison,
                       const KeepGoing& keepGoing = {});

/// The same in a transaction of the caller's, who undoes it after a failure.
void storeSheetChanges(store::Database& database, const SheetComparison& comparison,
                       const KeepGoing& keepGoing = {});

} // namespace norvane::articles
