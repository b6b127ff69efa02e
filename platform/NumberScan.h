// What a number looks like as text: sign, digits, point, exponent. Numbers and Decimal use it, so that a
// setting, a screen and a price are read alike.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace norvane
{

/// A number as it is written: digits / 10^scale.
struct ScannedNumber {
    bool negative = false;
    std::string digits;     ///< all digits of the mantissa, the point left out
    int scale = 0;          ///< negative for "1e3"
    std::size_t length = 0; ///< how many characters of the text the number takes
};

/// The number that is all of @p text, white space around it allowed. The exponent letter is E or D and must
/// be followed by digits. @return std::nullopt for any other text.
[[nodiscard]] std::optional<ScannedNumber> scanWholeNumber(std::string_view text);

/// The number at the start of @p text. Blanks, tabs and line feeds are skipped anywhere.
/// @return std::nullopt if @p text does not begin with a number.
[[nodiscard]] std::optional<ScannedNumber> scanLeadingNumber(std::string_view text);

/// The nearest double; 0 when the number is too small for one. @return nothing when it is too large.
[[nodiscard]] std::optional<double> toDouble(const ScannedNumber& number);

/// The whole number in @p text, written with digits and at most a leading minus. Nearly all numbers are
/// written so, and bulk work reads them without a scan.
/// @return nothing for any other form and for a number of more than 64 bits.
[[nodiscard]] std::optional<std::int64_t> plainWhole(std::string_view text);

} // namespace norvane
