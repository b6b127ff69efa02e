// The real serial line against a pseudo terminal, whose far side the test plays. Such a line shows no parity,
// no seven data bits and no control lines.
#include "platform/SerialLine.h"

#include <gtest/gtest.h>
#include <QCoreApplication>
#include <QElapsedTimer>

#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <thread>
#include <unistd.h>

namespace norvane
{
namespace
{

using namespace std::chrono_literals;

/// The far side of the line: what a modem would send and receive.
class FarSide
{
public:
    FarSide() : m_terminal(posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK))
    {
        grantpt(m_terminal);
        unlockpt(m_terminal);
    }
    FarSide(const FarSide&) = delete;
    FarSide& operator=(const FarSide&) = delete;
    ~FarSide() { hangUp(); }

    [[nodiscard]] QString device() const { return QString::fromLocal8Bit(ptsname(m_terminal)); }
    void answer(std::string_view bytes) const
    {
        ASSERT_EQ(write(m_terminal, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }
    [[nodiscard]] QByteArray received() const
    {
        QByteArray bytes(256, '\0');
        const auto count = read(m_terminal, bytes.data(), static_cast<std::size_t>(bytes.size()));
        return bytes.left(count < 0 ? 0 : count);
    }
    void hangUp()
    {
        if (m_terminal >= 0) {
            ::close(m_terminal);
        }
        m_terminal = -1;
    }

private:
    int m_terminal;
};

class SerialLineTest : public testing::Test
{
protected:
    SerialLineTest()
    {
        m_line->setSettings(QStringLiteral("19200,N,8,1"));
        m_line->setPort(2);
    }

    /// Polls, without an event loop, until @p wanted has come in. @return what has come in by then.
    QString inputUntil(const QString& wanted)
    {
        QString input;
        QElapsedTimer timer;
        timer.start();
        while (!input.contains(wanted) && !timer.hasExpired(10'000)) {
            if (m_line->inputCount() != 0) {
                input += m_line->takeInput();
            }
        }
        return input;
    }

    FarSide m_modem;
    std::unique_ptr<SerialLine> m_line = makeSerialLine({QString(), m_modem.device()});
};

TEST_F(SerialLineTest, SendsBytesAndTakesTheAnswer)
{
    ASSERT_TRUE(m_line->open());
    EXPECT_FALSE(m_line->open()) << "an open port cannot be opened once more";
    EXPECT_TRUE(m_line->send(QStringLiteral("AT&F\r")));
    EXPECT_EQ(m_modem.received(), "AT&F\r");
    m_modem.answer("an echo from before");
    m_line->clearInput();
    EXPECT_EQ(m_line->takeInput(), QString());
    m_modem.answer("\r\nOK\r\n\xE4");
    EXPECT_EQ(inputUntil(QStringLiteral("ä")), QStringLiteral("\r\nOK\r\nä"));
    EXPECT_EQ(m_line->inputCount(), 0);
}

TEST_F(SerialLineTest, AnAnswerComesInPiecesAndLate)
{
    ASSERT_TRUE(m_line->open());
    std::thread modem([this] {
        for (const auto* piece : {"CON", "NE", "CT 9600"}) {
            std::this_thread::sleep_for(50ms);
            m_modem.answer(piece);
        }
    });
    EXPECT_EQ(inputUntil(QStringLiteral("9600")), QStringLiteral("CONNECT 9600"));
    modem.join();
}

TEST_F(SerialLineTest, AModemThatHangsUpEndsNeitherWaitNorProgram)
{
    ASSERT_TRUE(m_line->open());
    m_modem.answer("NO CARRIER");
    EXPECT_EQ(inputUntil(QStringLiteral("CARRIER")), QStringLiteral("NO CARRIER"));
    m_modem.hangUp();
    EXPECT_EQ(m_line->inputCount(), 0);
    m_line->clearInput();
    (void)m_line->send(QStringLiteral("+++"));
    m_line->close();
    EXPECT_FALSE(m_line->isOpen());
    EXPECT_FALSE(m_line->open());
}

TEST_F(SerialLineTest, AClosedLineTakesAndGivesNothing)
{
    EXPECT_FALSE(m_line->send(QStringLiteral("AT")));
    EXPECT_EQ(m_line->inputCount(), 0);
    const auto nowhere = makeSerialLine({QStringLiteral("/dev/no-such-line")});
    EXPECT_FALSE(nowhere->open());
}

} // namespace
} // namespace norvane

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
