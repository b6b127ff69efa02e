// Turns stored values and totals, which may have any number of digits, into the numbers of a report's cells.
#pragma once

#include "platform/Decimal.h"
#include "store/engine/Value.h"

#include <string>
#include <string_view>

namespace norvane::reports
{

/// The decimal text of a stored value: a double is its shortest decimal; null, a text that is not a number
/// and a date count as "0".
/// @throws RuntimeFailure with Failure::Overflow for an infinite number.
[[nodiscard]] std::string exactText(const store::Value& value);

/// The number in @p exact, to 18 digits. A longer one is shortened so that rounding it to fewer places gives
/// the same as rounding the whole number.
/// @throws RuntimeFailure with Failure::Overflow if there are more than 18 digits before the point.
[[nodiscard]] Decimal decimalOf(std::string_view exact);

/// Whether @p exact has more digits than a Decimal holds.
[[nodiscard]] bool isLong(std::string_view exact);

/// The number in @p exact, rounded to @p places, halves away from zero, with all digits before the point.
[[nodiscard]] std::string roundedText(std::string_view exact, int places);

} // namespace norvane::reports
