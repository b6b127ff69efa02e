// The modem's conversation: command, answer, pause.
#include "link/Modem.h"

#include "link/CommandLines.h"
#include "link/ResultCodes.h"

#include <algorithm>

namespace norvane::link
{
namespace
{

constexpr double answerSeconds = 15;
constexpr double settleSeconds = 2;
constexpr double secondsOfDay = 86400;
constexpr int portCount = 4;

/// "0" is the numeric form of "OK". An echoed command that holds a zero passes as the answer too.
const QStringList readyAnswers{QStringLiteral("0"), QStringLiteral("OK")};
/// Numeric codes of modems that answer in digits, and the word of those that do not.
const QStringList connectAnswers{QStringLiteral("13"), QStringLiteral("12"), QStringLiteral("CONNECT")};

} // namespace

/// One command to the modem and what to wait for.
struct Modem::Step {
    QString caption;
    QString command;
    QStringList answers;
    double seconds;
};

Modem::Modem(SerialLine& line, Clock& clock, std::function<void(const QString&)> show)
    : m_line(line), m_clock(clock), m_show(std::move(show))
{
}

void Modem::setUpLine(const LinkSettings& link)
{
    m_line.setSettings(bareRate(link.baudIndex) + QStringLiteral(",N,8,1"));
    if (link.portIndex >= 0 && link.portIndex < portCount) {
        m_line.setPort(link.portIndex + 1);
    }
}

int Modem::DialModem(const LinkSettings& link)
{
    setUpLine(link);
    if (!m_line.open()) {
        return modemFailed;
    }
    const Step preparations[] = {
        {QStringLiteral("Resetting Modem ......."), link.resetString, readyAnswers, answerSeconds},
        {QStringLiteral("Programming Modem ......."), link.setUpString, readyAnswers, answerSeconds},
    };
    for (const Step& step : preparations) {
        m_line.clearInput();
        if (!converse(step)) {
            return modemFailed;
        }
        pauseFor(settleSeconds, m_clock.secondsSinceMidnight());
    }
    // What came in during the last pause is left standing: an answer to the dialling may not be lost.
    if (!converse({QStringLiteral("Dialing "), link.dialString, connectAnswers,
                   static_cast<double>(link.modemDelay)})) {
        return modemFailed;
    }
    m_show(QStringLiteral("Connected"));
    m_line.close();
    return 0;
}

bool Modem::converse(const Step& step)
{
    m_line.send(step.command);
    m_show(step.caption + step.command);
    return waitForAnswer(step.answers, step.seconds);
}

/// The time-out looks at the clock of the day alone, so a wait across midnight does not time out.
bool Modem::waitForAnswer(const QStringList& answers, double seconds)
{
    const double start = m_clock.secondsSinceMidnight();
    QString received;
    for (;;) {
        m_clock.yieldEvents();
        if (!m_line.isOpen()) {
            return false;
        }
        if (m_line.inputCount() != 0) {
            received += m_line.takeInput();
        }
        const auto holds = [&received](const QString& answer) {
            return received.contains(answer);
        };
        if (std::any_of(answers.begin(), answers.end(), holds)) {
            return true;
        }
        if (m_clock.secondsSinceMidnight() - start > seconds) {
            return false;
        }
        m_clock.pause();
    }
}

/// A pause does end after midnight: nothing else could end it.
void Modem::pauseFor(double seconds, double since)
{
    const auto passed = [&] {
        const double difference = m_clock.secondsSinceMidnight() - since;
        return difference < 0 ? difference + secondsOfDay : difference;
    };
    while (passed() <= seconds) {
        m_clock.pause();
    }
}

void Modem::Dropphoneline()
{
    if (!m_line.isOpen()) {
        m_line.open();
    }
    m_line.clearInput();
    const double start = m_clock.secondsSinceMidnight();
    m_line.send(QStringLiteral("+++"));
    m_line.clearInput();
    pauseFor(settleSeconds, start);
    m_line.send(QStringLiteral("ATH\r"));
    m_line.close();
}

} // namespace norvane::link
