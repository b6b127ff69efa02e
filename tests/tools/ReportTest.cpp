// The registers' sales reports: consolidated, collected and added up, turned into text, cleared.
#include "ToolBench.h"

namespace bank::test
{
namespace
{

const QString consolidate = q("9600 F1 2T P0001010100010000000000000000000000000000000000000000000100 -Z");
const QString collect = q("9600 F1 2T -P 190 191 192 194 218");
const QString clear = q("9600 F1 2T -C");

void sell(const ToolBench& bench, int number, int report, const QByteArray& lines)
{
    const auto folder = q("bank/%1/totals").arg(number);
    QDir().mkpath(bench.path(folder));
    bench.write(folder + q("/%1.txt").arg(report), lines);
}

QByteArray reportLine(const ToolBench& bench, int report, int line)
{
    EXPECT_EQ(bench.convert(q("wVelmarn fpoll%1.dll tPOLL%1.txt S%1").arg(report)).errors, "");
    return bench.read(q("work/POLL%1.txt").arg(report)).split('\n').value(line - 1).trimmed();
}

TEST(Reports, addUpTheRegistersItemByItem)
{
    const ToolBench bench(2);
    sell(bench, 1, 190, "10,100.05\r\n0,0\r\n-1,-2.5\r\n");
    sell(bench, 2, 190, "5,50.2\r\n");
    sell(bench, 2, 192, QByteArray("0,0\r\n").repeated(118) + "3,7\r\n");
    sell(bench, 1, 218, "0\r\n12\r\n");
    sell(bench, 1, 194, "1003,0,1,2,5.4\r\n");
    sell(bench, 2, 194, "1003,1,0,1.25,2.7,3,9.6\r\n");
    EXPECT_EQ(bench.comm(consolidate), "0");
    EXPECT_EQ(bench.comm(collect), "0");

    EXPECT_EQ(reportLine(bench, 190, 1), "15,150.25");
    EXPECT_EQ(reportLine(bench, 190, 3), "-1,-2.5");
    EXPECT_EQ(reportLine(bench, 191, 24), "0,0");
    EXPECT_EQ(reportLine(bench, 192, 119), "3,7");
    EXPECT_EQ(reportLine(bench, 218, 2), "12");
    EXPECT_EQ(reportLine(bench, 194, 3), "000000000000001003,1,1,3.25,8.1,3,9.6,0,0,0,0");
    EXPECT_EQ(bench.read("work/POLL192.txt").count('\n'), 118 * 99) << "a block for every employee";
}

TEST(Reports, waitUntilTheyAreClearedAndKeepWhatIsSoldMeanwhile)
{
    const ToolBench bench(2);
    sell(bench, 1, 190, "1,1\r\n");
    EXPECT_EQ(bench.comm(consolidate), "0");
    sell(bench, 1, 190, "2,2\r\n");
    EXPECT_EQ(bench.comm(consolidate), "-13");
    EXPECT_EQ(bench.comm(collect), "0");
    EXPECT_EQ(reportLine(bench, 190, 1), "1,1");
    EXPECT_EQ(bench.comm(clear), "0");
    EXPECT_EQ(bench.comm(consolidate), "0");
    EXPECT_EQ(bench.comm(collect), "0");
    EXPECT_EQ(reportLine(bench, 190, 1), "2,2");
}

TEST(Reports, sendDescriptionsWhenTheServiceSettingsSaySo)
{
    const ToolBench bench(2);
    bench.comm(q("s9 c1 N15.DAT -U 15"));
    bench.convert(q("wVelmarn f15.dat t15.txt u15"));
    bench.write("work/15.txt", bench.read("work/15.txt").replace(0, 1, "5"));
    bench.convert(q("wVelmarn f15.txt t15.dat d15"));
    EXPECT_EQ(bench.comm(q("s9 F1 1T c1 N15.DAT -d 15")), "0");
    EXPECT_EQ(bench.comm(consolidate), "0");
    EXPECT_EQ(bench.comm(collect), "0");
    EXPECT_EQ(bench.read("work/poll194.dll").mid(4, 1).toHex(), "43");
    EXPECT_EQ(reportLine(bench, 194, 1).split(',').value(1), "Espresso        ");
}

TEST(Reports, refuseTotalsThatAreNoNumbers)
{
    const ToolBench bench(2);
    for (const auto* value : {"one", "", "1.2.3", "1.2345", "9000000000000000000"}) {
        sell(bench, 1, 190, QByteArray("1,") + value + "\r\n");
        EXPECT_EQ(bench.comm(consolidate), "0") << value;
        EXPECT_EQ(bench.comm(collect), "3") << value;
        EXPECT_EQ(bench.comm(clear), "0") << value;
    }
    EXPECT_FALSE(bench.has(q("work/poll190.dll")));
}

} // namespace
} // namespace bank::test
