// The walk over all PLUs that fills price fields from others.
#pragma once

#include "platform/Decimal.h"
#include "store/Database.h"
#include "store/Recordset.h"

#include <QLatin1StringView>

#include <functional>
#include <optional>
#include <span>

namespace norvane::utilities
{

/// Two price fields of a PLU.
struct PricePair {
    QLatin1StringView source;
    QLatin1StringView target;
};

/// Fills the target fields of every record of @p plus, a recordset on pludata in @p database, in the order of
/// index plunumber: with the source converted at @p rate, or value for value without one. Calls @p everyRow
/// before each record.
///
/// One transaction, which commits at the end and also when a failure comes through it: the records before it
/// stay changed. Until then other connections cannot store, nor always read.
/// @throws RuntimeFailure 3021 when there are no records.
void transferPrices(store::Database& database, store::Recordset& plus, std::span<const PricePair> fields,
                    const std::optional<Decimal>& rate, const std::function<void()>& everyRow);

} // namespace norvane::utilities
