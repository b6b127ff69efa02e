// Dialling and hanging up on a real serial port with a modem at the other end.
#include "link/Modem.h"

#include "link/ResultCodes.h"
#include "tests/support/PseudoModem.h"

#include <gtest/gtest.h>
#include <QCoreApplication>

namespace norvane::link
{
namespace
{

using test::PseudoModem;
using test::QuickClock;

class ModemTest : public testing::Test
{
protected:
    ModemTest()
    {
        m_link.connectionType = QStringLiteral("MODEM");
        m_link.resetString = QStringLiteral("AT&F\r");
        m_link.setUpString = QStringLiteral("ATZ1\r");
        m_link.dialString = QStringLiteral("ATD555\r");
        m_link.modemDelay = 30;
    }
    /// @return the result of a dialling that gets these answers to its three commands.
    int dial(std::deque<PseudoModem::Answer> answers)
    {
        m_far.willAnswer(std::move(answers));
        return m_modem.DialModem(m_link);
    }

    int m_argc = 0;
    QCoreApplication m_application{m_argc, nullptr};
    PseudoModem m_far;
    QuickClock m_clock{m_far};
    std::unique_ptr<SerialLine> m_line = makeSerialLine({m_far.device()});
    LinkSettings m_link;
    QStringList m_shown;
    Modem m_modem{*m_line, m_clock, [this](const QString& text) {
                      m_shown << text;
                  }};
};

TEST_F(ModemTest, ResetsProgramsDialsAndLeavesThePortToTheTool)
{
    const double start = m_clock.now();
    EXPECT_EQ(dial({{"\r\nOK\r\n", 1}, {"\r\nOK\r\n", 14}, {"\r\nCONNECT 9600\r\n", 20}}), 0);
    EXPECT_FALSE(m_line->isOpen());
    EXPECT_EQ(m_far.received(), QByteArray("AT&F\rATZ1\rATD555\r"));
    EXPECT_EQ(m_shown, (QStringList{QStringLiteral("Resetting Modem .......AT&F\r"),
                                    QStringLiteral("Programming Modem .......ATZ1\r"),
                                    QStringLiteral("Dialing ATD555\r"), QStringLiteral("Connected")}));
    // The answers' seconds and two pauses of more than two.
    EXPECT_NEAR(m_clock.now() - start, 1 + 14 + 20 + 2 * 2, 1);
}

TEST_F(ModemTest, TakesWhatCountsAsAnAnswer)
{
    const struct {
        const char* name;
        std::deque<PseudoModem::Answer> answers;
        int result;
        int commands; ///< how many the modem got
    } cases[] = {
        {"numeric codes", {{"0\r"}, {"0\r"}, {"12\r"}}, 0, 3},
        {"the other connect code", {{"0\r"}, {"0\r"}, {"13\r"}}, 0, 3},
        {"an echo that holds a zero", {{"AT&F0\r"}, {"ATS0=0\r"}, {"CONNECT"}}, 0, 3},
        {"silence at the reset", {}, modemFailed, 1},
        {"OK after 16 seconds", {{"OK\r", 16}}, modemFailed, 1},
        {"silence at the programming", {{"OK"}}, modemFailed, 2},
        {"ERROR to the dialling", {{"OK"}, {"OK"}, {"ERROR\r\n"}}, modemFailed, 3},
        {"connect after the time-out", {{"OK"}, {"OK"}, {"CONNECT", 31}}, modemFailed, 3},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const qsizetype before = m_far.received().count('\r');
        EXPECT_EQ(dial(c.answers), c.result);
        EXPECT_EQ(m_far.received().count('\r') - before, c.commands);
        EXPECT_EQ(m_line->isOpen(), c.result != 0) << "a failure leaves the port to the hang-up";
        m_line->close();
    }
    m_link.modemDelay = 0;
    EXPECT_EQ(dial({{"OK"}, {"OK"}, {"CONNECT", 1}}), modemFailed) << "without a time-out";
}

TEST_F(ModemTest, JoinsAnAnswerThatComesInPieces)
{
    m_far.willSay(36001, "K");
    m_far.willSay(36010, "ECT");
    EXPECT_EQ(dial({{"O"}, {"OK"}, {"CONN"}}), 0);
}

/// What comes in within the pause behind an answer belongs to no later command but the dialling.
TEST_F(ModemTest, DropsWhatComesInBeforeTheProgrammingAlone)
{
    m_far.willSay(36001, "OK");
    EXPECT_EQ(dial({{"OK"}}), modemFailed);
    EXPECT_EQ(m_far.received(), QByteArray("AT&F\rATZ1\r"));
    m_line->close();
    m_far.willSay(m_clock.now() + 3.5, "CONNECT");
    EXPECT_EQ(dial({{"OK"}, {"OK"}}), 0);
}

TEST_F(ModemTest, DoesNotTimeOutAcrossMidnight)
{
    QuickClock late(m_far, 86390);
    Modem modem(*m_line, late, [](const QString&) {});
    m_far.willAnswer({{"OK"}, {"OK"}, {"CONNECT", 60}});
    EXPECT_EQ(modem.DialModem(m_link), 0) << "the dialling would end after 30 seconds by day";
}

TEST_F(ModemTest, EndsAPauseAcrossMidnight)
{
    QuickClock late(m_far, 86399.5);
    Modem modem(*m_line, late, [](const QString&) {});
    modem.Dropphoneline();
    EXPECT_NEAR(late.now(), 1.5, 0.3);
}

TEST_F(ModemTest, FailsOnAPortThatCannotBeOpened)
{
    EXPECT_FALSE(m_line->send(QStringLiteral("AT"))) << "not open yet";
    const auto line = makeSerialLine({QStringLiteral("no-such-port")});
    Modem modem(*line, m_clock, [](const QString&) {});
    EXPECT_EQ(modem.DialModem(m_link), modemFailed);
    modem.Dropphoneline();
    EXPECT_FALSE(line->isOpen());
}

TEST_F(ModemTest, AModemThatIsUnpluggedEndsNeitherWaitNorProgram)
{
    auto far = std::make_unique<PseudoModem>();
    const auto line = makeSerialLine({far->device()});
    ASSERT_TRUE(line->open());
    EXPECT_FALSE(line->open()) << "an open port cannot be opened once more";
    far.reset();
    EXPECT_EQ(line->inputCount(), 0);
    line->clearInput();
    (void)line->send(QStringLiteral("+++"));
    line->close();
    EXPECT_FALSE(line->isOpen());
    EXPECT_FALSE(line->open());
}

TEST_F(ModemTest, LeavesThePortAsItWasForAnIndexBeyondFour)
{
    m_link.portIndex = 0;
    m_modem.setUpLine(m_link);
    m_link.portIndex = 4;
    EXPECT_EQ(dial({{"OK"}, {"OK"}, {"CONNECT"}}), 0);
}

TEST_F(ModemTest, HangsUpAnOpenAndAClosedPort)
{
    for (const bool open : {false, true}) {
        SCOPED_TRACE(open);
        m_modem.setUpLine(m_link);
        ASSERT_EQ(open ? m_line->open() : true, true);
        const QByteArray before = m_far.received();
        const double start = m_clock.now();
        m_modem.Dropphoneline();
        EXPECT_FALSE(m_line->isOpen());
        EXPECT_EQ(m_far.received(), before + "+++ATH\r");
        EXPECT_GT(m_clock.now() - start, 2) << "the escape needs silence after it";
    }
}

TEST_F(ModemTest, EndsTheWaitWhenTheUserHangsUpInItsMidst)
{
    m_clock.onEvents = [this, left = false]() mutable {
        if (!left && m_clock.now() > 36005) {
            left = true;
            m_modem.Dropphoneline();
        }
    };
    EXPECT_EQ(dial({}), modemFailed);
    EXPECT_LT(m_clock.now(), 36010);
    EXPECT_EQ(m_far.received(), QByteArray("AT&F\r+++ATH\r"));
}

} // namespace
} // namespace norvane::link
