// Sales that are stored and that the registers may still hold: another collection would count them twice.
#pragma once

#include "sales/LastCollection.h"

namespace norvane::sales
{

/// The last collection, while its registers are not all cleared. Nothing once they are, and nothing when the
/// tables no longer hold its sales: these are to be stored again.
/// @throws RuntimeFailure what opening the database throws.
[[nodiscard]] std::optional<LastCollection> unclearedCollection(const ApplicationValues& values);
/// The same for the customer's own database, which is open already.
[[nodiscard]] std::optional<LastCollection> unclearedCollection(const ApplicationValues& values,
                                                                store::Database& database);

/// Whether a clear loses nothing: everything that the registers would clear is stored.
[[nodiscard]] bool mayBeCleared(const std::optional<LastCollection>& collection);

/// Notes that all registers were cleared.
void noteCleared(const ApplicationValues& values);
/// Notes that a clear failed. @param result of the transfer tool; nothing if it left none.
void noteClearFailed(const ApplicationValues& values, std::optional<int> result);
/// Notes that the registers are about to consolidate newer sales.
void noteNewerSales(const ApplicationValues& values);

/// Asks whether to clear the sales of @p collection before a new collection.
[[nodiscard]] QString clearFirstQuestion(const LastCollection& collection);
/// Asks whether to collect although the sales of @p collection would be counted twice. Follows a No to
/// clearFirstQuestion(), or is asked alone if the registers may no longer be cleared.
[[nodiscard]] QString countTwiceQuestion(const LastCollection& collection);
/// Asks whether to try a clear again that has failed just now.
[[nodiscard]] QString clearAgainQuestion();

} // namespace norvane::sales
