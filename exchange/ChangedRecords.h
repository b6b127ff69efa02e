// Which records of a table the registers do not have as they are here.
#pragma once

#include "base/ApplicationValues.h"
#include "store/engine/Value.h"

#include <vector>

namespace norvane::exchange
{

/// The values of @p keyField in the records whose lines are not known to be at all registers, each once, in
/// the order of the table's register files. All records of a table that was never sent or fetched; none of
/// one that is not sent from its records. Reads only.
/// @throws RuntimeFailure if the database cannot be read.
[[nodiscard]] std::vector<store::Value> changedRecords(const ApplicationValues& values, const QString& table,
                                                       const QString& keyField);

} // namespace norvane::exchange
