// Fills price fields of all PLUs from other ones.
#pragma once

#include "platform/Decimal.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"

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
/// index plunumber: with the source converted at @p rate, or with the source itself without a rate. Calls
/// @p everyRow before each record.
///
/// One transaction, which a failure commits too: the records before it remain changed. Until then other
/// connections cannot write, and sometimes not read.
/// @return the number of records. @throws RuntimeFailure with Failure::NoCurrentRecord if there are no
/// records.
qint64 transferPrices(store::Database& database, store::Recordset& plus, std::span<const PricePair> fields,
                      const std::optional<Decimal>& rate, const std::function<void()>& everyRow);

} // namespace norvane::utilities
