// Imports a file of records as one piece of work: safety copy, one transaction, one line in the log.
#pragma once

#include "articles/ComparedSheet.h"
#include "base/ApplicationValues.h"
#include "platform/Boxes.h"

#include <QDate>

#include <functional>
#include <optional>

namespace norvane::store
{
class WorkHistory;
}

namespace norvane::articles
{

/// Where a file is imported. The caller holds the lock of the run.
struct ImportPlace {
    const ApplicationValues& values; ///< of the customer who owns the data
    const TableSheet& sheet;
    Boxes& boxes;
    store::WorkHistory* history = nullptr; ///< for undoing it; nullptr for none
};

/// What the callers do in their own way while the work is in progress.
struct ImportSteps {
    std::function<ComparedSheet&()> compare;
    std::function<void(const SheetComparison& comparison)> review; ///< throws if nothing is to be imported
};

/// Stores what the file changes, unless it has mistakes. @return "3 changed, 1 new", as in the log; nothing
/// after a message if no safety copy can be made.
/// @throws RuntimeFailure as applySheetChanges(), and what the steps throw. Nothing is stored then.
[[nodiscard]] std::optional<QString> importSheet(const ImportPlace& place, const ImportSteps& steps,
                                                 const KeepGoing& keepGoing = {});

/// An import that is stored later.
struct ImportPlan {
    QDate day;
    QString model;  ///< of the customer's registers, as the setup dialog lists it
    QString source; ///< the file
};

/// Keeps what the file changes as a list of planned changes, unless it has mistakes. The file is compared
/// with the records as they will be on that day.
/// @return "list 7 for 2027-01-01: 3 changed, 1 new", as in the log.
/// @throws RuntimeFailure as addPlannedList(), and what the steps throw. Nothing is planned then.
[[nodiscard]] QString planSheet(const ImportPlace& place, const ImportSteps& steps, const ImportPlan& plan);

/// "3 changed, 1 new".
[[nodiscard]] QString changesInWords(const SheetComparison& comparison);

} // namespace norvane::articles
