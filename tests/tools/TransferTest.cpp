// What moves between the working directory and the registers, and what is refused on the way.
#include "ToolBench.h"

namespace bank::test
{
namespace
{

/// Fetches the groups from register 1 and gives one of them another name.
QByteArray changedGroups(const ToolBench& bench)
{
    EXPECT_EQ(bench.comm(q("s9 c1 N1.DAT -U 1")), "0");
    EXPECT_EQ(bench.convert(q("wVelmarn f1.DAT t1.txt u01")).exitCode, 0);
    auto text = bench.read("work/1.txt");
    bench.write("work/1.txt", text.replace("Hot Drinks  ", "Warm Drinks "));
    EXPECT_EQ(bench.convert(q("wVelmarn f1.txt t1.dat d01")).exitCode, 0);
    return bench.read("work/1.DAT");
}

TEST(Transfer, sendsToTheRangeAndStopsAtTheFirstRegisterThatIsOff)
{
    const ToolBench bench(3);
    const auto sent = changedGroups(bench);
    bench.set(2, "On", "0");
    EXPECT_EQ(bench.comm(q("s9 F1 3T c1 N1.DAT -D 1")), "8");
    EXPECT_EQ(bench.read("bank/1/1.dat"), sent);
    EXPECT_NE(bench.read("bank/2/1.dat"), sent);
    EXPECT_NE(bench.read("bank/3/1.dat"), sent);
    bench.set(2, "On", "1");
    EXPECT_EQ(bench.comm(q("s9 F1 2T c1 N1.DAT -D 1")), "0");
    EXPECT_EQ(bench.read("bank/2/1.dat"), sent);
    EXPECT_NE(bench.read("bank/3/1.dat"), sent);
}

TEST(Transfer, fetchesFromTheFirstRegisterOfThePort)
{
    const ToolBench bench(3);
    bench.set(1, "Port", "2");
    EXPECT_EQ(bench.comm(q("s9 c1 N18.DAT -u 18")), "0");
    EXPECT_EQ(bench.read("work/18.DAT"), bench.read("bank/2/18.dat"));
    EXPECT_NE(bench.read("work/18.DAT"), bench.read("bank/3/18.dat"));
    EXPECT_EQ(bench.comm(q("s9 c2 N18.DAT -u 18")), "0");
    EXPECT_EQ(bench.read("work/18.DAT"), bench.read("bank/1/18.dat"));
    EXPECT_EQ(bench.comm(q("s9 c3 N18.DAT -u 18")), "8");
    EXPECT_EQ(bench.comm(q("s9 F1 3T c1 N18.DAT -D 18")), "8") << "only two hang on port 1";
}

TEST(Transfer, replacesAFileWhoseNameDiffersInCaseOnly)
{
    const ToolBench bench;
    bench.write("work/MEM.dat", "old");
    EXPECT_EQ(bench.comm(q("9600 Nmem.DAT -U 52")), "0");
    EXPECT_FALSE(bench.has(q("work/mem.DAT")));
    EXPECT_EQ(bench.read("work/MEM.dat"), bench.read("bank/1/52.dat"));
}

TEST(Transfer, refusesWhatDoesNotFitTheRegister)
{
    const ToolBench bench;
    bench.comm(q("s9 c1 N1.DAT -U 1"));
    const auto good = bench.read("bank/1/1.dat");
    auto damaged = good;
    damaged[40] = 'x';
    auto otherFile = good;
    otherFile[5] = 2;
    auto otherModel = good;
    otherModel[6] = 2;

    struct Case {
        const char* name;
        QByteArray bytes;
        const char* result;
    };
    const std::vector<Case> cases{
        {"empty", "", "3"},
        {"text", "Hot Drinks  ,40,40\r\n", "3"},
        {"cut", good.chopped(1), "4"},
        {"longer", good + 'x', "4"},
        {"damaged", damaged, "11"},
        {"another file's number", otherFile, "11"},
        {"another model's word", otherModel, "11"},
        {"another file", bench.read("bank/1/58.dat"), "3"},
        {"opaque file", bench.read("bank/1/18.dat"), "3"},
    };
    for (const auto& each : cases) {
        bench.write("work/1.DAT", each.bytes);
        EXPECT_EQ(bench.comm(q("s9 F1 1T c1 N1.DAT -D 1")), each.result) << each.name;
        EXPECT_EQ(bench.read("bank/1/1.dat"), good) << each.name;
    }
}

TEST(Transfer, refusesMoreRecordsThanTheRegisterHasRoomFor)
{
    const ToolBench bench;
    bench.comm(q("s9 c1 N70.DAT -u 70"));
    bench.convert(q("wVelmarn f70.DAT t70.txt u70"));
    auto text = bench.read("work/70.txt");
    bench.write("work/70.txt", text + text.left(text.indexOf('\n') + 1));
    ASSERT_EQ(bench.convert(q("wVelmarn f70.txt t70.dat d70")).exitCode, 0);
    EXPECT_EQ(bench.comm(q("s9 F1 1T c1 N70.DAT -D 70")), "4");
}

TEST(Transfer, answersForTheStateOfTheRegister)
{
    struct Case {
        const char* name;
        void (*prepare)(const ToolBench&);
        const char* line;
        const char* result;
    };
    const std::vector<Case> cases{
        {"off", [](const ToolBench& b) { b.set(1, "On", "0"); }, "s9 c1 -U 250", "8"},
        {"busy", [](const ToolBench& b) { b.set(1, "Busy", "1"); }, "s9 c1 N1.DAT -U 1", "12"},
        {"no card functions", [](const ToolBench& b) { b.set(1, "Cards", "0"); }, "s9 c1 N71.DAT -u 71", "3"},
        {"file lost", [](const ToolBench& b) { QFile::remove(b.path("bank/1/1.dat")); }, "s9 c1 N1.DAT -U 1",
         "2"},
        {"nothing to send", [](const ToolBench&) {}, "s9 F1 1T c1 N1.DAT -D 1", "2"},
        {"another model",
         [](const ToolBench& b) {
             b.comm(q("s9 c1 N1.DAT -U 1"));
             b.set(1, "Model", "Dorvik");
         },
         "s9 F1 1T c1 N1.DAT -D 1", "3"},
        {"no bank", [](const ToolBench& b) { QFile::remove(b.path("work/registers.ini")); }, "s9 c1 -U 250",
         "8"},
    };
    for (const auto& each : cases) {
        const ToolBench bench;
        each.prepare(bench);
        EXPECT_EQ(bench.comm(q(each.line)), each.result) << each.name;
    }
    const ToolBench bench;
    bench.set(1, "On", "0");
    const auto ended = bench.run(VELMARCOMM_TOOL, q("s9 c1 -U 250"));
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_TRUE(ended.errors.contains("register 1 does not answer")) << ended.errors.toStdString();
}

/// Results, ranges and lost states are used by the tests of the exchanges.
TEST(Faults, comeWhereTheFaultFileSays)
{
    const struct {
        const char* name;
        const char* ini;
        QList<QByteArray> results; ///< of the same line again and again; "" for no status.out
    } faults[] = {
        {"by kind", "Command=send\nResult=9", {"0"}},
        {"by another file", "Command=fetch\nFile=2\nResult=6", {"0"}},
        {"the second time", "File=1\nNth=2\nResult=10", {"0", "10", "0"}},
        {"of another tool", "Tool=convert\nResult=1", {"0"}},
        {"crash", "Crash=1", {""}},
        {"negative", "Command=fetch\nResult=-14", {"-14"}},
        {"pause", "Hang=1", {"0"}},
    };
    for (const auto& fault : faults) {
        const ToolBench bench;
        bench.write("bank/faults.ini", QByteArray("[Fault]\n") + fault.ini + '\n');
        for (const auto& result : fault.results)
            EXPECT_EQ(bench.comm(q("s9 c1 N1.DAT -U 1")), result) << fault.name;
    }
}

TEST(Faults, cutWhatIsFetchedAndCrashAConversion)
{
    const ToolBench bench;
    bench.comm(q("s9 c1 N1.DAT -U 1"));
    bench.write("work/1.txt", "as it was");
    bench.write("bank/faults.ini", "[A]\nCommand=fetch\nFile=52\nBytesLeft=0\n"
                                   "[B]\nTool=convert\nFile=1\nCrash=1\n");
    EXPECT_EQ(bench.comm(q("s9 c1 Nmem.DAT -U 52")), "0");
    EXPECT_EQ(bench.read("work/mem.DAT"), "");
    EXPECT_TRUE(bench.convert(q("wVelmarn f1.dat t1.txt u01")).crashed);
    EXPECT_EQ(bench.read("work/1.txt"), "as it was");
}

} // namespace
} // namespace bank::test
