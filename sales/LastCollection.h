// What a customer's last collection was, remembered in the customer's folder for the next one.
#pragma once

#include "base/ApplicationValues.h"
#include "sales/PollImport.h"

#include <QByteArray>
#include <QDateTime>

#include <array>
#include <optional>

namespace norvane::store
{
class Database;
}

namespace norvane::sales
{

inline constexpr std::size_t reportCount = 5;

/// Why the registers may still hold sales that are stored.
struct Uncleared {
    std::optional<int> result; ///< of the last attempt to clear them; nothing if it left none
    /// The registers may also hold sales that are not stored. Clearing them would lose those.
    bool holdsMore = false;
};

/// What was stored last, and how to recognise it.
struct LastCollection {
    QByteArray mark; ///< hash of the five texts, empty before the first collection
    QDateTime stored;
    qint64 rowsOfDay = 0; ///< of that day in the sales tables, right after it was stored
    /// Records of each report in the order of pollFiles(); -1 if unknown.
    std::array<qint64, reportCount> records{-1, -1, -1, -1, -1};
    std::optional<Uncleared> uncleared; ///< nothing once all registers were cleared
};

[[nodiscard]] LastCollection readLastCollection(const ApplicationValues& values);
void noteLastCollection(const ApplicationValues& values, const LastCollection& collection);

/// A hash of the five texts in the program's folder: the same only for the same bytes.
/// @throws RuntimeFailure with Failure::FileNotFound when one is missing.
[[nodiscard]] QByteArray markOfReports(const ApplicationValues& values);

/// Rows of a day in all tables that a collection fills.
[[nodiscard]] qint64 rowsOfDay(store::Database& database, QDate day);

/// Whether the tables still hold what was stored. Not so after a reset of the sales, for a database that was
/// put back from a copy, and after a run that was cut off before it stored them.
[[nodiscard]] bool isStillStored(const LastCollection& collection, store::Database& database);

} // namespace norvane::sales
