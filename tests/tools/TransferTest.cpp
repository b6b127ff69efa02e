// VELMARCOMM: which command lines it takes, what moves between the working directory and the registers, and
// with which result it refuses others.
#include "ToolBench.h"

namespace bank::test
{
namespace
{

/// Lines separated by a semicolon, by the result in status.out.
const std::pair<const char*, const char*> linesByResult[] = {
    // lines of all three kinds
    {"0", "s9 c1 -U 250; s2 c1 Nmem.DAT -U 52; s4 F1 2T c1 N1.DAT -D 1; s1 F1 1T c1 N1.DAT -D 1; "
          "1200 Nmem.DAT -U 52; 19200 -U 250; 2400 F1 2T ZEROS; 9600 F1 2T -P 190 191 192 194 218; "
          "9600 F1 1T -C"},
    // words that are missing, unknown, in the wrong place or of another kind of line
    {"1", "; s9; c1 s9 -U 250; s9 N1.DAT -U 1; s9 c1 N1.DAT; s3 c1 -U 250; 4800 -U 250; s9 c5 -U 250; "
          "s9 C1 -U 250; s9 F2 2T c1 N1.DAT -D 1; s9 F1 0T c1 N1.DAT -D 1; s9 F1 33T c1 N1.DAT -D 1; "
          "s9 F1 02T c1 N1.DAT -D 1; s9 F1 2 c1 N1.DAT -D 1; s9 F1 2T c1 N1.DAT -U 1; s9 c1 N1.DAT -D 1; "
          "9600 N1.DAT -U 1; 9600 -C; s9 F1 2T c1 -C; s9 F1 2T c1 ZEROS"},
    // commands and files that do not exist, and those with the letter of another
    {"7", "s9 c1 1.DAT -U 1; s9 c1 N1.DAT -U 1 2; 9600 c1 -U 250; s9 c1 -X 250; s9 c1 -u 250; "
          "s9 c1 N19.DAT -U 19; s9 c1 N99.DAT -U 99; s9 c1 N2.DAT -U 1; s9 c1 N1.dat -U 1; "
          "s9 c1 Nmem.DAT -D 52; s9 F1 1T c1 N67.DAT -D 67; s9 F1 1T c1 N1.DAT -a; "
          "9600 F1 2T -P 190 191 192 194; 9600 F1 2T -P 191 190 192 194 218; 9600 F1 2T P000101010001 -Z; "
          "s9 c1 N1.DAT -u 1; s9 c1 N36.DAT -u 36; s9 c1 N57.DAT -U 57; s9 F1 1T c1 N1.DAT -d 1; "
          "s9 F1 1T c1 N4.DAT -D 4; s9 F1 1T c1 N65.DAT -D 65; s9 F1 1T c1 N57.DAT -d 57"},
    // no number where one belongs
    {"5", "s9 c1 N1.DAT -U one"},
};

/// The exchanges of the program send each line that it knows.
TEST(Transfer, TakesOrRefusesCommandLines)
{
    const ToolBench bench(2);
    bench.comm("s9 c1 N1.DAT -U 1");
    const auto zeros = u"P0001010100010000000000000000000000000000000000000000000100 -Z"_s;
    for (const auto& [result, lines] : linesByResult) {
        for (QString line : q(lines).split(u"; "_s))
            EXPECT_EQ(bench.comm(line.replace(u"ZEROS"_s, zeros)), result) << line.toStdString();
    }
}

TEST(Transfer, ServesTheRegistersOfAPortOneByOne)
{
    const ToolBench bench(3);
    bench.set(3, "Port", "2");
    EXPECT_EQ(bench.comm("s9 c3 N18.DAT -u 18"), "8");
    EXPECT_EQ(bench.comm("s9 c1 N18.DAT -u 18"), "0");
    EXPECT_EQ(bench.read("work/18.DAT"), bench.read("bank/1/18.dat"));
    EXPECT_EQ(bench.comm("s9 c2 N18.DAT -u 18"), "0");
    const auto sent = bench.read("work/18.DAT");
    EXPECT_EQ(sent, bench.read("bank/3/18.dat"));
    EXPECT_NE(sent, bench.read("bank/1/18.dat"));

    bench.set(2, "On", "0");
    EXPECT_EQ(bench.comm("s9 F1 2T c1 N18.DAT -D 18"), "8");
    EXPECT_EQ(bench.read("bank/1/18.dat"), sent);
    bench.set(2, "On", "1");
    EXPECT_EQ(bench.comm("s9 F1 1T c1 N18.DAT -D 18"), "0");
    EXPECT_NE(bench.read("bank/2/18.dat"), sent);
    EXPECT_EQ(bench.comm("s9 F1 3T c1 N18.DAT -D 18"), "8") << "only two hang on port 1";
    EXPECT_EQ(bench.read("bank/2/18.dat"), sent);
}

TEST(Transfer, WritesTheMemoryUnderTheExistingSpelling)
{
    const ToolBench bench;
    bench.write("work/MEM.dat", "old");
    EXPECT_EQ(bench.comm("9600 Nmem.DAT -U 52"), "0");
    EXPECT_FALSE(bench.has("work/mem.DAT"));
    EXPECT_EQ(bench.read("work/MEM.dat"), bench.read("bank/1/52.dat"));
}

TEST(Transfer, RefusesWhatDoesNotFitTheRegister)
{
    const ToolBench bench;
    const auto good = bench.read("bank/1/70.dat");
    const std::pair<QByteArray, const char*> files[] = {{"", "3"},
                                                        {"Hot Drinks  ,40,40\r\n", "3"},
                                                        {bench.read("bank/1/58.dat"), "3"},
                                                        {good.chopped(1), "4"},
                                                        {good + 'x', "4"},
                                                        {QByteArray(good).replace(40, 1, "x"), "11"}};
    for (const auto& [bytes, result] : files) {
        bench.write("work/70.DAT", bytes);
        EXPECT_EQ(bench.comm("s9 F1 1T c1 N70.DAT -D 70"), result) << bytes.size();
        EXPECT_EQ(bench.read("bank/1/70.dat"), good) << bytes.size();
    }
}

TEST(Faults, AClearThatFailsAtTheSecondRegisterLeavesItsSales)
{
    const ToolBench bench(2);
    for (const char* totals : {"bank/1/consolidated", "bank/2/consolidated"}) {
        QDir().mkpath(bench.path(totals));
        bench.write(QByteArray(totals) + "/190.txt", "1,2.5\r\n");
    }
    bench.write("bank/faults.ini", "[Clear]\nCommand=clear\nRegister=2\nResult=15\n");
    EXPECT_EQ(bench.comm("9600 F1 2T -C"), "15");
    EXPECT_FALSE(bench.has("bank/1/consolidated/190.txt"));
    EXPECT_TRUE(bench.has("bank/2/consolidated/190.txt"));
}

/// Registers that are off or busy are met by the exchanges and collections.
TEST(Transfer, AnswersByModelAndContentsOfTheRegister)
{
    const ToolBench bench;
    const char* const send = "s9 F1 1T c1 N1.DAT -D 1";
    EXPECT_EQ(bench.comm(send), "2") << "nothing to send";
    bench.write("work/1.DAT", bench.read("bank/1/1.dat"));
    bench.set(1, "Model", "Dorvik");
    EXPECT_EQ(bench.comm(send), "3");
    bench.set(1, "Cards", "0");
    EXPECT_EQ(bench.comm("s9 c1 N71.DAT -u 71"), "3");
    QFile::remove(bench.path("bank/1/1.dat"));
    EXPECT_EQ(bench.comm("s9 c1 N1.DAT -U 1"), "2") << "the register lost its file";
    QFile::remove(bench.path("work/registers.ini"));
    EXPECT_EQ(bench.comm("s9 c1 -U 250"), "8") << "no bank";
}

/// Results, ranges and lost states are used by the tests of the exchanges.
TEST(Faults, HappenWhereTheFaultFileSays)
{
    const ToolBench bench;
    bench.write("bank/faults.ini", "[OtherCommand]\nCommand=send\nResult=9\n"
                                   "[OtherFile]\nCommand=fetch\nFile=2\nResult=6\n"
                                   "[SecondTime]\nTool=VELMARCOMM\nFile=1\nNth=2\nResult=-14\n"
                                   "[Crash]\nFile=58\nCrash=1\n"
                                   "[Cut]\nCommand=fetch\nFile=52\nBytesLeft=0\n"
                                   "[OtherTool]\nTool=convert\nFile=1\nCrash=1\n");
    for (const char* const result : {"0", "-14", "0"})
        EXPECT_EQ(bench.comm("s9 c1 N1.DAT -U 1"), result);
    EXPECT_EQ(bench.comm("s9 c1 N58.DAT -u 58"), "") << "a tool that crashed leaves no result";
    EXPECT_EQ(bench.comm("s9 c1 Nmem.DAT -U 52"), "0");
    EXPECT_EQ(bench.read("work/mem.DAT"), "");
    bench.write("work/1.txt", "as it was");
    EXPECT_TRUE(bench.convert("wVelmarn f1.dat t1.txt u01").crashed);
    EXPECT_EQ(bench.read("work/1.txt"), "as it was");
}

} // namespace
} // namespace bank::test
