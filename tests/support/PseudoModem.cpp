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

void PseudoModem::act(double now)
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

QByteArray PseudoModem::received()
{
    char buffer[256];
    for (auto count = ::read(m_line, buffer, sizeof buffer); count > 0;
         count = ::read(m_line, buffer, sizeof buffer))
        m_received.append(buffer, count);
    return m_received;
}

void QuickClock::pause()
{
    QThread::msleep(1);
    m_now += 0.1;
    m_modem.act(m_now);
}

void QuickClock::yieldEvents()
{
    QCoreApplication::processEvents();
    if (onEvents)
        onEvents();
}

} // namespace norvane::test
