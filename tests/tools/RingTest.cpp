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
const QString consolidate = q("9600 F1 3T P0001010100010000000000000000000000000000000000000000000100 -Z");
const QString collect = q("9600 F1 3T -P 190 191 192 194 218");
const QString clear = q("9600 F1 3T -C");
const QList<int> reports{190, 191, 192, 194, 218};

QByteArray journal(const ToolBench& bench, const QString& options)
{
    const auto words = q("%1 --tickets 80 --journal day.csv %2").arg(bench.path("bank"), options);
    const auto ended = bench.run(RINGSALES, words);
    EXPECT_EQ(ended.exitCode, 0) << ended.errors.constData();
    return bench.read("work/day.csv");
}

/// What a register calls the lines of a report.
QByteArrayList namesOf(const ToolBench& bench, int file)
{
    EXPECT_EQ(bench.convert(q("wVelmarn f../bank/1/%1.dat tnames.txt u%1").arg(file)).exitCode, 0);
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
    EXPECT_EQ(bench.convert(q("wVelmarn fpoll%1.dll tPOLL%1.txt S%1").arg(report)).errors, "");
    auto lines = bench.read(q("work/POLL%1.txt").arg(report)).split('\n');
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

/// Each day is rung on a bank where the day before was cleared, so that nothing of it may be left but what
/// was rung after its reports were consolidated.
TEST(Ringing, comesHomeDayByDayWhateverTheRegistersSend)
{
    struct Day {
        const char* stamp; ///< "" as the registers are set
        const char* sent;
        std::size_t levels;
        const char* registers;
    };
    const ToolBench bench(registers);
    QByteArray evening;
    int seed = 0;
    for (const auto& day : {Day{"", "41", 4, "1,2,3"}, Day{"10", "10", 1, "1,2,3"}, Day{"20", "20", 1, "2"},
                            Day{"21", "21", 2, "1,2,3"}, Day{"31", "31", 3, "3,1"}, Day{"41", "41", 4, "1,2"},
                            Day{"", "43", 4, "1,2,3"}}) {
        SCOPED_TRACE(day.sent);
        bench.set(1, "Stamp", day.stamp);
        if (q(day.sent) == q("43"))
            sendDescriptions(bench);
        RungDay rung = emptyDay(bench);
        if (!evening.isEmpty())
            rung.add(evening, day.levels);
        rung.add(journal(bench, q("--seed %1 --registers %2").arg(++seed).arg(q(day.registers))), day.levels);
        rung.add(journal(bench, q("--seed %1 --registers 2").arg(++seed)), day.levels);
        EXPECT_EQ(bench.comm(consolidate), "0");
        evening = journal(bench, q("--seed %1 --registers 1,3").arg(++seed));
        EXPECT_EQ(bench.comm(collect), "0");
        EXPECT_EQ(bench.read("work/poll194.dll").mid(4, 1).toHex(), day.sent);
        for (const int report : reports)
            EXPECT_EQ(collected(bench, report, q(day.sent) == q("43") ? 2 : 1), rung.sums(report)) << report;
        EXPECT_EQ(bench.comm(clear), "0");
    }
    EXPECT_TRUE(bench.read("work/POLL194.txt").contains(",Espresso        ,"));
    for (const bool anySold : {true, false}) {
        EXPECT_EQ(bench.comm(consolidate), "0");
        EXPECT_EQ(bench.comm(collect), "0");
        for (const int report : reports)
            EXPECT_EQ(collected(bench, report, 2).empty(), !anySold) << report;
        EXPECT_EQ(bench.comm(clear), "0");
    }
}

/// A run that broke off and is repeated brings each register's day once, or again from those not yet cleared.
TEST(Ringing, losesNothingWhenAStepBreaksOff)
{
    struct Break {
        QString line;
        const char* kind;
        const char* againFrom; ///< registers whose day the repeated run brings
    };
    const ToolBench bench(registers);
    for (const auto& each : {Break{consolidate, "consolidate", "1,2,3"}, Break{collect, "collect", "1,2,3"},
                             Break{clear, "clear", "2,3"}}) {
        SCOPED_TRACE(each.kind);
        RungDay rung = emptyDay(bench);
        rung.add(journal(bench, q("--seed 9 --registers %1").arg(q(each.againFrom))), 4);
        if (q(each.againFrom) != q("1,2,3"))
            journal(bench, q("--seed 9 --registers 1"));
        for (const auto& line : {consolidate, collect, clear}) {
            if (line != each.line) {
                EXPECT_EQ(bench.comm(line), "0");
                continue;
            }
            bench.set(2, "On", "0");
            EXPECT_EQ(bench.comm(line), "8");
            bench.set(2, "On", "1");
            bench.set(2, "Busy", "1");
            EXPECT_EQ(bench.comm(line), "12");
            bench.set(2, "Busy", "0");
            bench.write("bank/faults.ini",
                        QByteArray("[Third]\nRegister=2\nResult=15\nCommand=") + each.kind + '\n');
            EXPECT_EQ(bench.comm(line), "15");
            QFile::remove(bench.path("bank/faults.ini"));
            break;
        }
        EXPECT_EQ(bench.comm(consolidate), "-13");
        EXPECT_EQ(bench.comm(collect), "0");
        for (const int report : reports)
            EXPECT_EQ(collected(bench, report), rung.sums(report)) << report;
        EXPECT_EQ(bench.comm(clear), "0");
    }
}

TEST(Ringing, isTheSameForASeedAndARegister)
{
    const ToolBench bench(registers);
    const auto day = journal(bench, q("--seed 5"));
    EXPECT_EQ(journal(bench, q("--seed 5")), day);
    const auto third = journal(bench, q("--seed 5 --registers 3")).split('\n').value(1);
    EXPECT_TRUE(day.contains(third)) << "whichever registers are rung beside it";
    EXPECT_NE(journal(bench, q("--seed 6 --registers 3")).split('\n').value(1), third);
    for (const auto& wrong : {q("nowhere"), bench.path("bank") + q(" --registers 4"),
                              bench.path("bank") + q(" --tickets many"), q("")})
        EXPECT_EQ(bench.run(RINGSALES, wrong).exitCode, 1) << wrong.toStdString();
}

} // namespace
} // namespace bank::test
