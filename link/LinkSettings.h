// How the registers are reached: the link values of the customer's setup.ini, as the exchange dialogs take
// them.
#pragma once

#include "base/ApplicationValues.h"

#include <QString>

namespace norvane::link
{

/// The link values. Read anew at each press of OK, so that a change in the set-up dialog counts at once.
struct LinkSettings {
    QString connectionType; ///< "DIRECT" or "MODEM"; empty before the first reading
    QString resetString;    ///< ends in a carriage return, as the two below
    QString setUpString;
    QString dialString; ///< "ATD" and the telephone number
    int modemDelay = 0; ///< whole seconds to wait for the far modem
    int baudIndex = 0;  ///< list index from 0; see CommandLines.h for what it stands for
    int portIndex = 0;  ///< list index from 0, so serial port number less one
    QString rangeWord;  ///< last register of the range, "1T" to "32T"

    [[nodiscard]] bool isModem() const { return connectionType == u"MODEM"; }
};

/// Reads the link values. Numbers are taken by the leading number of their text, so that blanks and no key at
/// all count as 0.
/// @throws RuntimeFailure 6 when a number does not fit (the dial time-out holds at most 32,767 seconds).
[[nodiscard]] LinkSettings readLinkSettings(const ApplicationValues& values);

} // namespace norvane::link
