// What a file of PLUs would change in a database, and changing it.
#pragma once

#include "command/PluFile.h"
#include "store/Database.h"

#include <QByteArray>

#include <span>
#include <string>
#include <vector>

namespace norvane::command
{

struct PluFieldChange {
    const PluColumn* column = nullptr;
    std::string before; ///< as the listing shows it; empty for what was never set
    std::string after;  ///< what will be stored
};

struct PluChange {
    std::string number; ///< as the table holds it
    bool isNew = false;
    qint64 position = 0;                ///< of a known one, in the order of the numbers, from 0
    std::vector<PluFieldChange> fields; ///< in the order of the file's columns
};

struct PluComparison {
    std::vector<PluMistake> mistakes; ///< by line; with one of them nothing may be stored
    std::vector<PluChange> changes;   ///< by number, new PLUs behind them as the file has them
};

/// Holds a file against the PLUs of @p database. A cell that reads as an export writes what is stored changes
/// nothing and is never a mistake, whatever the register thinks of it. An empty price, group or status leaves
/// things as they are; an empty description empties it.
/// @throws RuntimeFailure as the database reports.
[[nodiscard]] PluComparison comparePlus(store::Database& database, const QByteArray& content);

/// Stores all changes or none. New PLUs are filled as the PLU screen fills a new record.
/// @throws RuntimeFailure 3022, 3167 when the PLUs are no longer those that were compared, and as the
/// database reports.
void applyPluChanges(store::Database& database, std::span<const PluChange> changes);

/// A value of the column as the listing shows it: prices with two places and a point.
[[nodiscard]] QString shownPluValue(const PluColumn& column, const std::string& value);

} // namespace norvane::command
