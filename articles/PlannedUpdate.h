// Stores a list of planned changes in a database.
#pragma once

#include "articles/PlannedList.h"
#include "articles/TableSheet.h"
#include "platform/KeepGoing.h"
#include "store/engine/Database.h"

namespace norvane::articles
{

/// A planned change that was not stored.
struct LeftOutChange {
    QString number;  ///< of the record, as users know it
    QString heading; ///< of the field; empty for the whole record
    QString reason;

    /// "PLU 101, Price 1: it is 1.40, not 1.20; 1.30 was planned".
    [[nodiscard]] QString inWords(const QString& recordName) const;
};

/// What became of a list.
struct PlannedResult {
    qsizetype changed = 0; ///< records
    qsizetype added = 0;
    qsizetype same = 0; ///< fields that already had the new value
    QList<LeftOutChange> leftOut;

    /// Whether the database has something of the list.
    [[nodiscard]] bool isStored() const { return changed + added + same > 0; }
    /// "12 PLUs changed, 1 new, 2 not stored".
    [[nodiscard]] QString inWords(const QString& recordName) const;
};

/// The spreadsheet of the list's table with the columns of its fields.
/// @param messageWidth characters of a message line on the customer's registers
/// @throws SpreadsheetError if the table or a field does not exist (any more).
[[nodiscard]] TableSheet sheetOfPlanned(const PlannedList& list, int messageWidth);

/// Stores the list completely or not at all, except for fields that no longer have the value that they had
/// when the change was planned, records that are gone, and values that a register would not accept now: those
/// are left out. A field that already has the new value is as it should be.
/// @param sheet as sheetOfPlanned() gives it
/// @throws RuntimeFailure with Failure::UserInterrupt when @p keepGoing returns false, and as the database
/// reports.
PlannedResult storePlannedList(store::Database& database, const TableSheet& sheet, const PlannedList& list,
                               const KeepGoing& keepGoing = {});
/// The same in a transaction of the caller's, who undoes it after a failure.
PlannedResult storePlannedListWithin(store::Database& database, const TableSheet& sheet,
                                     const PlannedList& list, const KeepGoing& keepGoing = {});

} // namespace norvane::articles
