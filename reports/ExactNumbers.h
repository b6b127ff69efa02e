// Turns stored values and totals, which may have any number of digits, into the numbers of a report's cells.
#pragma once

#include "platform/Decimal.h"
#include "store/Value.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace norvane::reports
{

/// Digits that a Decimal holds.
inline constexpr int mostDigits = 18;

/// The count of decimal digits of @p number without its sign; 1 for 0.
[[nodiscard]] int digitsOf(std::int64_t number);

/// The decimal that a stored value stands for, spelled out: a double is its shortest decimal; null, a text
/// that is no number and a date count as "0".
/// @throws RuntimeFailure 6 for an infinite number.
[[nodiscard]] std::string exactText(const store::Value& value);

/// The number that @p exact spells, to 18 digits. A longer one loses its tail in such a way that rounding it
/// to fewer places gives what rounding the whole number would.
/// @throws RuntimeFailure 6 when there are more than 18 digits before the point.
[[nodiscard]] Decimal decimalOf(std::string_view exact);

/// Whether @p exact has more digits than a Decimal holds.
[[nodiscard]] bool isLong(std::string_view exact);

/// The number that @p exact spells, rounded to @p places, halves away from zero, with all digits before the
/// point.
[[nodiscard]] std::string roundedText(std::string_view exact, int places);

/// The product of both: exact when it has at most 18 digits, else rounded to 18.
/// @throws RuntimeFailure 6 when there are more than 18 digits before the point.
[[nodiscard]] Decimal product(const Decimal& left, const Decimal& right);

} // namespace norvane::reports
