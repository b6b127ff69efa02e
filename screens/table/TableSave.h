// "Save Changes" of a table: questions, lock, safety copy, one transaction, one line in the log.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "screens/table/PendingEdits.h"
#include "screens/table/TableColumns.h"
#include "store/engine/Database.h"

namespace norvane::store
{
class WorkHistory;
}

namespace norvane::screens
{

/// Which table is saved, and how the user knows it.
struct TableInUse {
    const TableSource& source;
    QString caption;                       ///< of its screen: "PLUs"
    QString recordName;                    ///< of one record: "PLU"
    ApplicationValues values;              ///< with the database of the table
    store::WorkHistory* history = nullptr; ///< for undoing it; nullptr for none
};

/// Stores @p edits and empties them. Asks first where somebody else has changed a record meanwhile; what is
/// not stored remains pending.
/// @return what the status bar says.
[[nodiscard]] QString saveEdits(store::Database& database, const TableInUse& table, PendingEdits& edits,
                                Boxes& boxes);

} // namespace norvane::screens
