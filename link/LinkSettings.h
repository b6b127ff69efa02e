// How the registers are reached: the link values of the customer's setup.ini.
#pragma once

#include "base/ApplicationValues.h"

#include <QString>

namespace norvane::link
{

/// The link values. Each press of OK reads them again, so that a change in the set-up dialog takes effect
/// immediately.
struct LinkSettings {
    QString connectionType; ///< "DIRECT" or "MODEM"; empty before the first reading
    QString resetString;    ///< ends in a carriage return, as the two below
    QString setUpString;
    QString dialString; ///< "ATD" and the telephone number
    int modemDelay = 0; ///< whole seconds to wait for the far modem
    int baudIndex = 0;  ///< list index from 0; see CommandLines.h for its meaning
    int portIndex = 0;  ///< list index from 0, so serial port number less one
    QString rangeWord;  ///< last register of the range, "1T" to "32T"

    [[nodiscard]] bool isModem() const { return connectionType == u"MODEM"; }
    /// How many registers there are.
    [[nodiscard]] int registers() const { return rangeWord.left(rangeWord.size() - 1).toInt(); }
};

/// The registers that a download or a collection speaks with, in words: "register 1", "registers 1 to 3".
[[nodiscard]] QString registersInWords(const LinkSettings& link);

/// Reads the link values. A number is the leading number of its text; blanks and a missing key count as 0.
/// @throws RuntimeFailure with Failure::Overflow if a number does not fit (the dial time-out holds at most
/// 32,767 seconds).
[[nodiscard]] LinkSettings readLinkSettings(const ApplicationValues& values);

} // namespace norvane::link
