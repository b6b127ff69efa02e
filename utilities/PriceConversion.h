// The arithmetic of a price conversion: one price, one exchange rate.
#pragma once

#include "platform/Decimal.h"

#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace norvane::utilities
{

/// The number that the user's answer begins with ("1,5" is 1). @return nothing when that is 0, as for empty
/// text or words. @throws RuntimeFailure 6 for a number of more than 18 digits.
[[nodiscard]] std::optional<Decimal> exchangeRate(const QString& answer);

/// @p price, a text that counts by its leading number, divided by @p rate (not 0) and brought to two places
/// by the shops' own rule: rounded at the fourth place, cut there, and rounded on the third.
/// @return the text that price fields hold: a blank in the sign's place and no trailing zeros (" 1.5", " 0",
/// "-0.68"). @throws RuntimeFailure 6 when the quotient has more than 18 digits.
[[nodiscard]] std::string convertedPrice(std::string_view price, const Decimal& rate);

} // namespace norvane::utilities
