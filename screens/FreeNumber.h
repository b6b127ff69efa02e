// The number that is proposed for a new PLU.
#pragma once

#include "register/PluNumber.h"
#include "store/engine/Database.h"

#include <optional>

namespace norvane::screens
{

/// The first number above @p number that no PLU of @p database has. For several new PLUs, call it with the
/// number proposed before. @return nothing if there is none up to 18 digits, or no table of PLUs.
[[nodiscard]] std::optional<PluNumber> nextFreePlu(store::Database& database, const PluNumber& number);

} // namespace norvane::screens
