// Dials the registers' modem before an exchange and hangs up after it. In between the port is closed, so that
// the transfer tool can use it; the call remains connected.
#pragma once

#include "link/Clock.h"
#include "link/LinkSettings.h"
#include "platform/SerialLine.h"

#include <QStringList>

#include <functional>

namespace norvane::link
{

/// One modem on one serial line.
class Modem
{
public:
    /// @p show puts a text into the form's status bar.
    Modem(SerialLine& line, Clock& clock, std::function<void(const QString&)> show);

    /// Sets rate and port of the serial line; a port index other than 0 to 3 leaves the port as it was.
    void setUpLine(const LinkSettings& link);

    /// Resets, programs and dials. Handles window events while it waits, so that the user can leave: closing
    /// the port ends the wait.
    /// @return 0 when connected (the port is closed then), 100 on any failure (the port remains open, for
    /// Dropphoneline to hang up).
    [[nodiscard]] int DialModem(const LinkSettings& link);

    /// Sends the escape and hangs up, opening the port if need be; ignores failures of the port.
    void Dropphoneline();

private:
    struct Step;
    [[nodiscard]] bool prepare(const LinkSettings& link);
    bool converse(const Step& step);
    bool waitForAnswer(const QStringList& answers, double seconds);
    void pauseFor(double seconds, double since);

    SerialLine& m_line;
    Clock& m_clock;
    std::function<void(const QString&)> m_show;
};

} // namespace norvane::link
