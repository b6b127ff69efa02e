// The modem's conversation: command, answer, pause.
#include "link/Modem.h"

#include "link/CommandLines.h"
#include "link/ResultCodes.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{
namespace
{

constexpr double answerSeconds = 15;
constexpr double settleSeconds = 2;
constexpr double secondsOfDay = 86400;
constexpr int portCount = 4;

/// "0" is the numeric form of "OK". An echoed command with a zero in it counts as the answer too.
const QStringList readyAnswers{u"0"_s, u"OK"_s};
/// The codes of modems that answer in digits, and the word of the others.
const QStringList connectAnswers{u"13"_s, u"12"_s, u"CONNECT"_s};

bool holdsAny(const QString& received, const QStringList& answers)
{
    return std::any_of(answers.begin(), answers.end(),
                       [&](const QString& answer) { return received.contains(answer); });
}

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
    m_line.setSettings(bareRate(link.baudIndex) + u",N,8,1"_s);
    if (link.portIndex >= 0 && link.portIndex < portCount)
        m_line.setPort(link.portIndex + 1);
}

int Modem::DialModem(const LinkSettings& link)
{
    setUpLine(link);
    const Step dialling{u"Dialing "_s, link.dialString, connectAnswers, static_cast<double>(link.modemDelay)};
    // The input is not cleared before the dialling: its answer may come in early and must not be lost.
    if (!m_line.open() || !prepare(link) || !converse(dialling))
        return modemFailed;
    m_show(u"Connected"_s);
    m_line.close();
    return 0;
}

bool Modem::prepare(const LinkSettings& link)
{
    const Step preparations[] = {
        {u"Resetting Modem ......."_s, link.resetString, readyAnswers, answerSeconds},
        {u"Programming Modem ......."_s, link.setUpString, readyAnswers, answerSeconds},
    };
    for (const Step& step : preparations) {
        m_line.clearInput();
        if (!converse(step))
            return false;
        pauseFor(settleSeconds, m_clock.secondsSinceMidnight());
    }
    return true;
}

bool Modem::converse(const Step& step)
{
    m_line.send(step.command);
    m_show(step.caption + step.command);
    return waitForAnswer(step.answers, step.seconds);
}

/// The time-out reads the time of day only, so a wait across midnight does not time out.
bool Modem::waitForAnswer(const QStringList& answers, double seconds)
{
    const double start = m_clock.secondsSinceMidnight();
    for (QString received;; m_clock.pause()) {
        m_clock.yieldEvents();
        if (!m_line.isOpen())
            return false;
        received += m_line.inputCount() == 0 ? QString() : m_line.takeInput();
        if (holdsAny(received, answers))
            return true;
        if (m_clock.secondsSinceMidnight() - start > seconds)
            return false;
    }
}

/// A pause ends after midnight too: nothing else could end it.
void Modem::pauseFor(double seconds, double since)
{
    const auto passed = [&] {
        const double difference = m_clock.secondsSinceMidnight() - since;
        return difference < 0 ? difference + secondsOfDay : difference;
    };
    while (passed() <= seconds)
        m_clock.pause();
}

void Modem::Dropphoneline()
{
    if (!m_line.isOpen())
        m_line.open();
    m_line.clearInput();
    const double start = m_clock.secondsSinceMidnight();
    m_line.send(u"+++"_s);
    m_line.clearInput();
    pauseFor(settleSeconds, start);
    m_line.send(u"ATH\r"_s);
    m_line.close();
}

} // namespace norvane::link
