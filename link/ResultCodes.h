// The result codes that the transfer tool leaves in status.out, in words.
#pragma once

#include <QString>

namespace norvane::link
{

/// Result that the dialling of the modem gives on any failure.
inline constexpr int modemFailed = 100;
/// Result of a sales collection whose registers send PLU descriptions with their poll.
inline constexpr int descriptionsPolled = 101;

/// The text for @p status. For a status without a text it names @p dialResult instead, the number that
/// dialling gave (0 on a direct link).
[[nodiscard]] QString resultText(int status, int dialResult);

/// The same for a list or a log, without the leading number: "result 8: Time Out".
[[nodiscard]] QString resultInWords(int status);

/// What a result means for the user.
struct ResultMeaning {
    QString happened; ///< "a register did not answer"
    QString helps;    ///< one or more sentences
    /// A register gave it, so that those before it were served. Any other result stops the tool before the
    /// first.
    bool isOfOneRegister = false;
};
[[nodiscard]] ResultMeaning resultMeaning(int status);

/// A value of status.out as a number; empty text counts as 0.
/// @throws RuntimeFailure with Failure::TypeMismatch if it is not a number, Failure::Overflow if it does not
/// fit 32 bits.
[[nodiscard]] int resultNumber(const QString& statusText);

} // namespace norvane::link
