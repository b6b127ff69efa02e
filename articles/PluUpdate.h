// Stores the changes that a comparison found.
#pragma once

#include "articles/PluComparison.h"
#include "platform/KeepGoing.h"

namespace norvane::articles
{

/// Stores all changes or none. New PLUs are filled as the PLU screen fills a new record.
/// @throws RuntimeFailure with Failure::DuplicateKey, Failure::RecordDeleted if the PLUs are no longer those
/// that were compared, Failure::UserInterrupt when @p keepGoing returns false, and as the database reports.
void applyPluChanges(store::Database& database, const PluComparison& comparison,
                     const KeepGoing& keepGoing = {});

} // namespace norvane::articles
