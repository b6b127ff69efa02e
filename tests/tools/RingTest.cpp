// A day rung at the registers comes home as it was rung: consolidated, collected, turned into text, cleared.
#include "tests/support/RungDay.h"
#include "ToolBench.h"

namespace bank::test
{
namespace
{

using norvane::test::ReportSums;
using norvane::test::RungDay;

constexpr int registers = 3;
const QString consolidate = u"9600 F1 3T P0001010100010000000000000000000000000000000000000000000100 -Z"_s;
const QString collect = u"9600 F1 3T -P 190 191 192 194 218"_s;
const QString clear = u"9600 F1 3T -C"_s;
const QList<int> reports{190, 191, 192, 194, 218};

QByteArray journal(const ToolBench& bench, const QString& options)
{
    const auto words = u"%1 --tickets 80 --journal day.csv %2"_s.arg(bench.path("bank"), options);
    const auto ended = bench.run(RINGSALES, words);
    EXPECT_EQ(ended.exitCode, 0) << ended.errors.constData();
    return bench.read("work/day.csv");
}

/// What a register calls the lines of a report.
QByteArrayList namesOf(const ToolBench& bench, int file)
{
    EXPECT_EQ(bench.convert(u"wVelmarn f../bank/1/%1.dat tnames.txt u%1"_s.arg(file)).exitCode, 0);
    QByteArrayList names;
    for (const auto& line : bench.read("work/names.txt").split('\n'))
        names += line.trimmed();
    return names;
}

RungDay emptyDay(const ToolBench& bench)
{
    return {namesOf(bench, 21), namesOf(bench, 22)};
}

QByteArray itemOf(int report, qsizetype record, const QByteArrayList& values)
{
    constexpr int block = 118;
    if (report == 194)
        return values.first();
    if (report == 192)
        return QByteArray::number(record / block + 1) + '/' + QByteArray::number(record % block + 1);
    return QByteArray::number(record + 1);
}

/// The sums that the converted reports hold; @param head values in front of the numbers of a PLU.
ReportSums collected(const ToolBench& bench, int report, qsizetype head = 1)
{
    EXPECT_EQ(bench.convert(u"wVelmarn fpoll%1.dll tPOLL%1.txt S%1"_s.arg(report)).errors, "");
    auto lines = bench.read(u"work/POLL%1.txt"_s.arg(report)).split('\n');
    lines.removeLast();
    ReportSums sums;
    for (qsizetype record = 0; record < lines.size(); ++record) {
        const auto values = lines.at(record).trimmed().split(',');
        auto& numbers = sums[itemOf(report, record, values)];
        for (qsizetype i = report == 194 ? head : 0; i < values.size(); ++i)
            numbers.push_back(norvane::test::thousandths(values.at(i)));
    }
    norvane::test::dropZeros(sums);
    return sums;
}

void sendDescriptions(const ToolBench& bench)
{
    bench.convert("wVelmarn f../bank/1/15.dat t15.txt u15");
    bench.write("work/15.txt", bench.read("work/15.txt").replace(0, 1, "5"));
    EXPECT_EQ(bench.convert("wVelmarn f15.txt t../bank/1/15.dat d15").errors, "");
}

void expectReports(const ToolBench& bench, const RungDay& rung, qsizetype head = 1)
{
    for (const int report : reports)
        EXPECT_EQ(collected(bench, report, head), rung.sums(report)) << report;
}

/// Days of three registers, each rung on a bank where the day before was cleared, so that nothing of it may
/// be left but what was rung after its reports were consolidated.
class Days : public testing::Test
{
protected:
    struct Day {
        const char* stamp; ///< "" as the registers are set
        const char* sent;
        std::size_t levels;
        const char* registers;
    };

    /// @return the journal of the sales; each has a seed of its own.
    QByteArray ring(const char* onRegisters)
    {
        return journal(m_bench, u"--seed %1 --registers %2"_s.arg(++m_seed).arg(q(onRegisters)));
    }

    void bringHome(const Day& day)
    {
        RungDay rung = emptyDay(m_bench);
        if (!m_evening.isEmpty())
            rung.add(m_evening, day.levels);
        rung.add(ring(day.registers), day.levels);
        rung.add(ring("2"), day.levels);
        EXPECT_EQ(m_bench.comm(consolidate), "0");
        m_evening = ring("1,3");
        EXPECT_EQ(m_bench.comm(collect), "0");
        EXPECT_EQ(m_bench.read("work/poll194.dll").mid(4, 1).toHex(), day.sent);
        expectReports(m_bench, rung, q(day.sent) == u"43" ? 2 : 1);
        EXPECT_EQ(m_bench.comm(clear), "0");
    }

    const ToolBench m_bench{registers};

private:
    QByteArray m_evening;
    int m_seed = 0;
};

TEST_F(Days, comeHomeWhateverTheRegistersSend)
{
    for (const auto& day : {Day{"", "41", 4, "1,2,3"}, Day{"10", "10", 1, "1,2,3"}, Day{"20", "20", 1, "2"},
                            Day{"21", "21", 2, "1,2,3"}, Day{"31", "31", 3, "3,1"}, Day{"41", "41", 4, "1,2"},
                            Day{"", "43", 4, "1,2,3"}}) {
        SCOPED_TRACE(day.sent);
        m_bench.set(1, "Stamp", day.stamp);
        if (q(day.sent) == u"43")
            sendDescriptions(m_bench);
        bringHome(day);
    }
    EXPECT_TRUE(m_bench.read("work/POLL194.txt").contains(",Espresso        ,"));
    for (const bool anySold : {true, false}) {
        EXPECT_EQ(m_bench.comm(consolidate), "0");
        EXPECT_EQ(m_bench.comm(collect), "0");
        for (const int report : reports)
            EXPECT_EQ(collected(m_bench, report, 2).empty(), !anySold) << report;
        EXPECT_EQ(m_bench.comm(clear), "0");
    }
}

/// Register 2 is off, then busy, then fails, so that each time the run ends there.
void breakOff(const ToolBench& bench, const QString& line, const char* command)
{
    for (const auto& [key, calm, result] : {std::tuple("On", "1", "8"), std::tuple("Busy", "0", "12")}) {
        bench.set(2, key, *calm == '1' ? "0" : "1");
        EXPECT_EQ(bench.comm(line), result);
        bench.set(2, key, calm);
    }
    bench.write("bank/faults.ini", QByteArray("[Third]\nRegister=2\nResult=15\nCommand=") + command + '\n');
    EXPECT_EQ(bench.comm(line), "15");
    QFile::remove(bench.path("bank/faults.ini"));
}

struct Break {
    const char* command;
    QStringList before; ///< the steps that went well
    QString line;
    const char* againFrom; ///< registers whose day the repeated run brings
};

/// A run that broke off and is repeated brings each register's day once, or again from those not yet cleared.
TEST(Ringing, losesNothingWhenAStepBreaksOff)
{
    const ToolBench bench(registers);
    for (const auto& each :
         {Break{"consolidate", {}, consolidate, "1,2,3"}, Break{"collect", {consolidate}, collect, "1,2,3"},
          Break{"clear", {consolidate, collect}, clear, "2,3"}}) {
        SCOPED_TRACE(each.command);
        RungDay rung = emptyDay(bench);
        rung.add(journal(bench, u"--seed 9 --registers "_s + q(each.againFrom)), 4);
        if (q(each.againFrom) != u"1,2,3")
            journal(bench, u"--seed 9 --registers 1"_s);
        for (const QString& line : each.before)
            EXPECT_EQ(bench.comm(line), "0");
        breakOff(bench, each.line, each.command);
        EXPECT_EQ(bench.comm(consolidate), "-13");
        EXPECT_EQ(bench.comm(collect), "0");
        expectReports(bench, rung);
        EXPECT_EQ(bench.comm(clear), "0");
    }
}

TEST(Ringing, isTheSameForASeedAndARegister)
{
    const ToolBench bench(registers);
    const auto day = journal(bench, u"--seed 5"_s);
    EXPECT_EQ(journal(bench, u"--seed 5"_s), day);
    const auto third = journal(bench, u"--seed 5 --registers 3"_s).split('\n').value(1);
    EXPECT_TRUE(day.contains(third)) << "whichever registers are rung beside it";
    EXPECT_NE(journal(bench, u"--seed 6 --registers 3"_s).split('\n').value(1), third);
    for (const auto& wrong : {u"nowhere"_s, bench.path("bank") + u" --registers 4"_s,
                              bench.path("bank") + u" --tickets many"_s, u""_s})
        EXPECT_EQ(bench.run(RINGSALES, wrong).exitCode, 1) << wrong.toStdString();
}

/// The articles of a journal with the key that rang them, leading zeros left out.
QByteArrayList rungOn(const QByteArray& journal)
{
    const auto lines = journal.trimmed().split('\n');
    const auto heads = lines.first().trimmed().split(',');
    QSet<QByteArray> rung;
    for (const QByteArray& line : lines.sliced(1)) {
        const auto columns = line.split(',');
        rung += QByteArray::number(columns.at(heads.indexOf("plu")).toLongLong()) + " on " +
                columns.at(heads.indexOf("key"));
    }
    auto sorted = rung.values();
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

TEST(Ringing, goesByTheKeys)
{
    const ToolBench bench;
    EXPECT_EQ(rungOn(journal(bench, u"--key 1/1"_s)), QByteArrayList{"1001 on 1/1"});
    EXPECT_STREQ(rungOn(journal(bench, u"--key 3/125 --seed 3 --tickets 900"_s)).join(", "),
                 "1301 on 3/125, 1302 on 3/125, 1303 on 3/125, 1304 on 3/125, 1305 on 3/125, 1313 on 3/125");
    const auto day = rungOn(journal(bench, u"--seed 3"_s));
    EXPECT_TRUE(day.contains("1001 on 1/1")) << day.join(", ").constData();
    for (const char* key : {"1/157", "6/1", "1/170", "1", "0/3"}) {
        const auto words = bench.path("bank") + u" --key "_s + q(key);
        EXPECT_EQ(bench.run(RINGSALES, words).exitCode, 1) << key;
    }
}

} // namespace
} // namespace bank::test
