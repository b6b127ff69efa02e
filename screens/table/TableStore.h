// Compares pending changes of a table with what is stored, and stores them.
#pragma once

#include "screens/table/PendingEdits.h"
#include "screens/table/TableColumns.h"
#include "store/engine/Database.h"

#include <vector>

namespace norvane::screens
{

/// Whether every record is there and holds what the user saw. @p edits are in the order of their rows.
/// @throws RuntimeFailure as the database reports.
[[nodiscard]] bool areFresh(store::Database& database, const TableSource& source,
                            const std::vector<PendingEdit>& edits);

/// A change whose record is not what the user saw.
struct EditConflict {
    enum class Kind { Changed, Renumbered, Deleted };
    Kind kind;
    PendingEdit edit;
    store::Value now; ///< what the cell holds, or the record's number
};

/// Pending changes as they would be stored now: without those of deleted records, and with what the cells
/// hold as the values before. A record that was deleted and added again, as by an upload, is found by its
/// number.
struct FreshEdits {
    std::vector<PendingEdit> edits;
    std::vector<EditConflict> conflicts;
};

/// @throws RuntimeFailure as the database reports.
[[nodiscard]] FreshEdits freshEdits(store::Database& database, const TableSource& source,
                                    const std::vector<PendingEdit>& edits);

/// Stores all of @p edits, which are in the order of their rows, or none. @throws RuntimeFailure with
/// Failure::EngineFailure if a record is not what the edits say, and as the database reports.
void storeEdits(store::Database& database, const TableSource& source, const std::vector<PendingEdit>& edits);

/// "17 changes in 12 records". @p edits are in the order of their rows.
[[nodiscard]] QString amountOf(const std::vector<PendingEdit>& edits);

} // namespace norvane::screens
