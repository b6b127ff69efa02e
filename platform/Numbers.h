// Numbers and texts by the conversion rules of the former platform. Settings, screens and text records use
// them.
#pragma once

#include <QString>

namespace norvane
{

/// The number at the start of @p text, blanks skipped; 0 if there is none ("12abc" is 12, "" is 0). The point
/// is the decimal sign on every machine.
[[nodiscard]] double leadingNumber(QStringView text);

/// Shortest plain text of a number: "12.5", "0.5", "-3", never an exponent for the numbers that tables hold.
[[nodiscard]] QString numberText(double number);
/// The same with a place for the sign: " 12.5", "-3".
[[nodiscard]] QString signedNumberText(double number);

/// Converts the whole text to a number (blanks around it allowed).
/// @throws RuntimeFailure with Failure::TypeMismatch when the text is not a number, empty text included.
[[nodiscard]] double toNumber(QStringView text);
/// The same, rounded to a whole number, halves to the even neighbour.
/// @throws RuntimeFailure with Failure::TypeMismatch, and Failure::Overflow outside @p bits (16 or 32).
[[nodiscard]] int toWholeNumber(QStringView text, int bits = 32);
/// Rounds halves to the even neighbour. @throws RuntimeFailure with Failure::Overflow when it does not fit 32
/// bits.
[[nodiscard]] int roundHalfEven(double number);
/// "True" or "False" in any case, or a number: all but 0 are true. @throws RuntimeFailure with
/// Failure::TypeMismatch for any other text.
[[nodiscard]] bool toBoolean(QStringView text);

/// Formats a number by zeros with an optional point ("00", "0000.00"): at least so many digits before the
/// point, exactly so many after it, halves rounded away from zero in decimal. Empty text remains empty.
/// @throws RuntimeFailure with Failure::TypeMismatch if @p text is neither empty nor a number.
[[nodiscard]] QString formatNumber(QStringView text, QStringView pattern);

} // namespace norvane
