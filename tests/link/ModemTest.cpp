// Dialling and hanging up on a real serial port with a modem at the other end.
#include "link/Modem.h"

#include "link/ResultCodes.h"
#include "tests/support/PseudoModem.h"

#include <gtest/gtest.h>
#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

namespace norvane::link
{
namespace
{

using test::PseudoModem, test::QuickClock;

class ModemTest : public testing::Test
{
protected:
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
    LinkSettings m_link{.connectionType = u"MODEM"_s,
                        .resetString = u"AT&F\r"_s,
                        .setUpString = u"ATZ1\r"_s,
                        .dialString = u"ATD555\r"_s,
                        .modemDelay = 30,
                        .rangeWord = u"1T"_s};
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
    EXPECT_EQ(m_shown, (QStringList{u"Resetting Modem .......AT&F\r"_s, u"Programming Modem .......ATZ1\r"_s,
                                    u"Dialing ATD555\r"_s, u"Connected"_s}));
    // The answers' seconds and two pauses of more than two.
    EXPECT_NEAR(m_clock.now() - start, 1 + 14 + 20 + 2 * 2, 1);
}

const struct {
    const char* name;
    std::deque<PseudoModem::Answer> answers;
    int result;
    int commands; ///< how many the modem got
} answersOfModems[] = {
    {"numeric codes", {{"0\r"}, {"0\r"}, {"12\r"}}, 0, 3},
    {"the other connect code", {{"0\r"}, {"0\r"}, {"13\r"}}, 0, 3},
    {"an echo that holds a zero", {{"AT&F0\r"}, {"ATS0=0\r"}, {"CONNECT"}}, 0, 3},
    {"silence at the reset", {}, modemFailed, 1},
    {"OK after 16 seconds", {{"OK\r", 16}}, modemFailed, 1},
    {"silence at the programming", {{"OK"}}, modemFailed, 2},
    {"ERROR to the dialling", {{"OK"}, {"OK"}, {"ERROR\r\n"}}, modemFailed, 3},
    {"connect after the time-out", {{"OK"}, {"OK"}, {"CONNECT", 31}}, modemFailed, 3},
};

TEST_F(ModemTest, TakesWhatCountsAsAnAnswer)
{
    for (const auto& c : answersOfModems) {
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

/// What comes in during the pause after an answer is dropped, except before the dialling.
TEST_F(ModemTest, JoinsPiecesAndDropsOnlyWhatComesBeforeTheProgramming)
{
    m_far.willSay(36001, "OK");
    EXPECT_EQ(dial({{"OK"}}), modemFailed);
    EXPECT_EQ(m_far.received(), QByteArray("AT&F\rATZ1\r"));
    m_line->close();
    m_far.willSay(m_clock.now() + 3.5, "CONN");
    m_far.willSay(m_clock.now() + 6, "ECT");
    EXPECT_EQ(dial({{"OK"}, {"OK"}}), 0);
}

TEST_F(ModemTest, DoesNotTimeOutAtMidnightAndEndsItsPauses)
{
    QuickClock late(m_far, 86390);
    Modem modem(*m_line, late, [](const QString&) {});
    m_far.willAnswer({{"OK"}, {"OK"}, {"CONNECT", 60}});
    EXPECT_EQ(modem.DialModem(m_link), 0) << "the dialling would end after 30 seconds by day";
    QuickClock later(m_far, 86399.5);
    Modem(*m_line, later, [](const QString&) {}).Dropphoneline();
    EXPECT_NEAR(later.secondsSinceMidnight(), 1.5, 0.3);
}

TEST_F(ModemTest, ContinuesWithoutAMissingPort)
{
    EXPECT_FALSE(m_line->send(u"AT"_s)) << "not open yet";
    const auto missing = makeSerialLine({u"no-such-port"_s});
    Modem modem(*missing, m_clock, [](const QString&) {});
    EXPECT_EQ(modem.DialModem(m_link), modemFailed);
    modem.Dropphoneline();
    EXPECT_FALSE(missing->isOpen());
}

TEST(SerialLine, ContinuesWhenAnOpenPortIsUnplugged)
{
    auto far = std::make_unique<PseudoModem>();
    const auto line = makeSerialLine({far->device()});
    ASSERT_TRUE(line->open());
    EXPECT_FALSE(line->open()) << "an open port cannot be opened once more";
    far.reset();
    EXPECT_EQ(line->inputCount(), 0);
    line->clearInput();
    (void)line->send(u"+++"_s);
    line->close();
    EXPECT_FALSE(line->open());
}

TEST_F(ModemTest, HangsUpAnOpenAndAClosedPort)
{
    m_link.portIndex = 0;
    m_modem.setUpLine(m_link);
    m_link.portIndex = 4; // beyond the list: the port is unchanged
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

} // namespace
} // namespace norvane::link
