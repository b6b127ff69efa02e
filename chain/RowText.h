// Values of a customer's database as PostgreSQL's COPY reads them.
#pragma once

#include "chain/ChainTables.h"
#include "store/engine/Value.h"

#include <string>
#include <string_view>

namespace norvane::chain
{

/// Appends a value, escaped; null, and a price that was never set, as COPY spells null.
void appendValue(std::string& line, const store::Value& value, Content content);

/// Appends a sum that is stored multiplied by ten to the power of @p places.
/// @throws RuntimeFailure with Failure::Overflow if it has more than 18 digits and places.
void appendSum(std::string& line, std::string_view sum, int places);

} // namespace norvane::chain
