// How one price is converted at an exchange rate.
#pragma once

#include "platform/Decimal.h"

#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace norvane::utilities
{

/// The number at the start of @p answer ("1,5" is 1); nothing if it is 0 or the text has no number.
/// @throws RuntimeFailure with Failure::Overflow for a number of more than 18 digits.
[[nodiscard]] std::optional<Decimal> exchangeRate(const QString& answer);

/// Whether all of @p answer is a number, as in "0.68" but not in "1,5".
[[nodiscard]] bool isWhollyNumber(const QString& answer);

/// The number at the start of @p price, divided by @p rate (not 0). The quotient is rounded to four places
/// and truncated to three; a last digit below 5 is subtracted; then it is rounded to two.
/// @return the text for a price field: a blank or "-" first, no trailing zeros (" 1.5", " 0", "-0.68").
/// @throws RuntimeFailure with Failure::Overflow if the quotient has more than 18 digits.
[[nodiscard]] std::string convertedPrice(std::string_view price, const Decimal& rate);

} // namespace norvane::utilities
