// A modem at the far end of a pseudo terminal, and a clock that runs faster than the day.
#pragma once

#include "link/Clock.h"

#include <gtest/gtest.h>
#include <QtCore>

#include <cmath>
#include <cstdlib>
#include <deque>
#include <fcntl.h>
#include <functional>
#include <map>
#include <unistd.h>

namespace norvane::test
{

/// Answers each command that ends in a carriage return with the next of its answers, after the given number
/// of seconds. Keeps everything that it received.
class PseudoModem
{
public:
    struct Answer {
        QByteArray text;
        double delay = 0;
    };

    PseudoModem() : m_line(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK))
    {
        EXPECT_GE(m_line, 0);
        EXPECT_EQ(::grantpt(m_line), 0);
        EXPECT_EQ(::unlockpt(m_line), 0);
        m_device = QString::fromLocal8Bit(::ptsname(m_line));
    }
    ~PseudoModem() { ::close(m_line); }
    PseudoModem(const PseudoModem&) = delete;
    PseudoModem& operator=(const PseudoModem&) = delete;

    /// Device name for the serial line.
    [[nodiscard]] QString device() const { return m_device; }
    /// Answers the commands that come from now on.
    void willAnswer(std::deque<Answer> answers)
    {
        m_commands = received().count('\r');
        m_answers = std::move(answers);
    }
    /// Puts bytes on the line at a time of the clock, asked or not.
    void willSay(double time, const QByteArray& text) { m_due.insert({time, text}); }
    /// Reads what has come and sends what is due at @p now, in seconds that go on past midnight.
    void act(double now)
    {
        const auto commands = received().count('\r');
        for (; m_commands < commands; ++m_commands) {
            if (!m_answers.empty()) {
                willSay(now + m_answers.front().delay, m_answers.front().text);
                m_answers.pop_front();
            }
        }
        for (; !m_due.empty() && m_due.begin()->first <= now; m_due.erase(m_due.begin())) {
            const QByteArray& text = m_due.begin()->second;
            EXPECT_EQ(::write(m_line, text.constData(), static_cast<std::size_t>(text.size())), text.size());
        }
    }
    /// All bytes that have come so far.
    [[nodiscard]] QByteArray received()
    {
        char buffer[256];
        for (auto count = ::read(m_line, buffer, sizeof buffer); count > 0;
             count = ::read(m_line, buffer, sizeof buffer))
            m_received.append(buffer, count);
        return m_received;
    }

private:
    int m_line;
    QString m_device;
    std::deque<Answer> m_answers;
    std::multimap<double, QByteArray> m_due;
    QByteArray m_received;
    qsizetype m_commands = 0; ///< that had their turn to be answered
};

/// Every pause is a tenth of a second on this clock. The modem works whenever time passes.
class QuickClock : public link::Clock
{
public:
    explicit QuickClock(PseudoModem& modem, double start = 36000) : m_modem(modem), m_now(start) {}

    /// Runs at each handling of events, as a user's press would.
    std::function<void()> onEvents;
    [[nodiscard]] double now() const { return std::fmod(m_now, 86400); }

    [[nodiscard]] double secondsSinceMidnight() override { return now(); }
    void pause() override
    {
        QThread::msleep(1);
        m_now += 0.1;
        m_modem.act(m_now);
    }
    void yieldEvents() override
    {
        QCoreApplication::processEvents();
        if (onEvents)
            onEvents();
    }

private:
    PseudoModem& m_modem;
    double m_now; ///< continues past midnight
};

} // namespace norvane::test
