// The one place that knows what a number looks like as text: sign, digits, point, exponent. Numbers and
// Decimal both stand on it, so that a setting, a screen and a price are read alike.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace norvane
{

/// A number as its text gives it: digits / 10^scale, not yet held in any binary type.
struct ScannedNumber {
    bool negative = false;
    std::string digits;     ///< all digits of the mantissa, the point left out
    int scale = 0;          ///< negative for "1e3"
    std::size_t length = 0; ///< how many characters of the text the number takes
};

/// Exponents beyond this are cut to it: far outside of every number type, near enough to reckon with.
inline constexpr int exponentLimit = 9999;

/// The number that @p text begins with, no blanks passed over. The exponent letter is E or D; one without
/// digits behind it is not part of the number. @return nothing when there is no digit.
[[nodiscard]] std::optional<ScannedNumber> scanNumber(std::string_view text);

/// The number that is the whole of @p text but for white space around it.
[[nodiscard]] std::optional<ScannedNumber> scanWholeNumber(std::string_view text);

/// The number that @p text begins with when its blanks, tabs and line feeds are passed over wherever they
/// stand.
[[nodiscard]] std::optional<ScannedNumber> scanLeadingNumber(std::string_view text);

/// The double next to a scanned number; one too small to hold is 0. @return nothing when it is too large.
[[nodiscard]] std::optional<double> toDouble(const ScannedNumber& number);

/// The whole number that @p text spells with digits and at most a minus in front. Nearly all numbers are
/// spelled so, and bulk work reads them without a scan.
/// @return nothing for any other spelling and for a number of more than 64 bits.
[[nodiscard]] std::optional<std::int64_t> plainWhole(std::string_view text);

} // namespace norvane
