// Copies parts of a programme to another shop.
#pragma once

#include "base/ApplicationValues.h"
#include "programme/PartComparison.h"

#include <vector>

namespace norvane::programme
{

/// Stores the changes that @p comparison found, all or none. Records keep their row ids, and new ones get ids
/// that none had before.
/// @throws RuntimeFailure with Failure::RecordDeleted if one of the two shops is no longer as it was
/// compared, Failure::UserInterrupt when @p keepGoing returns false, and as the database reports.
void applyParts(const PartComparison& comparison, const KeepGoing& keepGoing = {});

/// The same of several comparisons with one shop.
void applyParts(const std::vector<PartComparison>& comparisons, const KeepGoing& keepGoing = {});

/// The same of one with a safety copy before, if there is something to change, and a line in the log of the
/// shop.
/// @param from the name of the shop that is copied
/// @param target the other shop; its folder must be locked
/// @return what was done: "2 new, 1 changed, 0 gone".
/// @throws RuntimeFailure also as the safety copy reports; nothing was then changed.
QString copyParts(const PartComparison& comparison, const QString& from, const ApplicationValues& target,
                  const KeepGoing& keepGoing = {});

} // namespace norvane::programme
