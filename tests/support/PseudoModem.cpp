// The far end of the pseudo terminal.
#include "tests/support/PseudoModem.h"

#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QThread>

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace norvane::test
{

PseudoModem::PseudoModem() : m_line(::posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK))
{
    EXPECT_GE(m_line, 0);
    EXPECT_EQ(::grantpt(m_line), 0);
    EXPECT_EQ(::unlockpt(m_line), 0);
    m_device = QString::fromLocal8Bit(::ptsname(m_line));
}

PseudoModem::~PseudoModem()
{
    ::close(m_line);
}

void PseudoModem::say(const QByteArray& text)
{
    EXPECT_EQ(::write(m_line, text.constData(), static_cast<std::size_t>(text.size())), text.size());
}

void PseudoModem::readPending()
{
    char buffer[256];
    for (;;) {
        const auto count = ::read(m_line, buffer, sizeof buffer);
        if (count <= 0) {
            return;
        }
        m_received.append(buffer, count);
    }
}

void PseudoModem::act(double now)
{
    readPending();
    for (qsizetype end = m_received.indexOf('\r', m_answered); end >= 0;
         end = m_received.indexOf('\r', m_answered)) {
        m_answered = end + 1;
        if (!m_answers.empty()) {
            willSay(now + m_answers.front().delay, m_answers.front().text);
            m_answers.pop_front();
        }
    }
    while (!m_due.empty() && m_due.begin()->first <= now) {
        say(m_due.begin()->second);
        m_due.erase(m_due.begin());
    }
}

QByteArray PseudoModem::received()
{
    readPending();
    return m_received;
}

void QuickClock::pause()
{
    QThread::msleep(1);
    m_now += 0.1;
    if (m_now >= 86400) {
        m_now -= 86400;
        ++m_days;
    }
    m_modem.act(m_days * 86400 + m_now);
}

void QuickClock::yieldEvents()
{
    QCoreApplication::processEvents();
    if (onEvents) {
        onEvents();
    }
}

} // namespace norvane::test
