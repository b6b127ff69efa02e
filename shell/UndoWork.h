// Undoes the latest piece of work in the open database.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "store/engine/WorkHistory.h"

#include <functional>

namespace norvane::shell
{

/// Records, fields and values as the user knows them.
struct UndoNames {
    std::function<QString(const QString& table, const QString& key)> record;
    std::function<QString(const QString& table, const QString& field)> field;
    std::function<QString(const QString& table, const QString& field, const QString& plain)> value;
};

/// Shows what would be restored and asks; No is the default. Rows that somebody changed since the work are
/// left as they are, and the question says how many. Work whose rows were all changed since is refused and
/// removed from @p history, so that the one before it can be undone.
/// @return a notice for the status bar. @throws RuntimeFailure as the database reports; nothing is restored
/// then.
[[nodiscard]] QString undoLatestWork(const ApplicationValues& values, Boxes& boxes,
                                     store::WorkHistory& history, const UndoNames& names);

} // namespace norvane::shell
