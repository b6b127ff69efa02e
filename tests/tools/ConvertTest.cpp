// convert: every register file of every model to text and back, and what it refuses.
#include "ToolBench.h"

namespace bank::test
{
namespace
{

const QStringList modelWords{q("Velmaro"), q("Velmaro"), q("Velmarn"), q("Dorvik")};

class RoundTrip : public testing::TestWithParam<int>
{
};

TEST_P(RoundTrip, ofEveryFileIsTheSameByteForByte)
{
    const int model = GetParam();
    const ToolBench bench(1, model);
    for (const int file : {1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15, 16, 17, 20, 21, 22,
                           23, 24, 25, 26, 29, 32, 33, 34, 36, 57, 58, 60, 63, 64, 65, 67, 70, 71, 85, 86}) {
        const auto source = q("bank/1/%1.dat").arg(file);
        EXPECT_EQ(bench.has(source), model != 0 || (file != 71 && file < 85)) << file;
        if (!bench.has(source))
            continue;
        const auto& word = modelWords.at(model);
        const auto code = q("%1").arg(file, 2, 10, QLatin1Char('0'));
        const auto down = (file == 63 && model == 3 ? q("d1") : q("d")) + code;
        EXPECT_EQ(bench.convert(q("w%1 f../%2 tout.txt u%3").arg(word, source, code)).errors, "");
        EXPECT_EQ(bench.convert(q("w%1 fout.txt tback.dat %2").arg(word, down)).errors, "");
        EXPECT_EQ(bench.read("work/back.dat"), bench.read(source)) << file;
        const auto text = bench.read("work/out.txt");
        EXPECT_TRUE(text.endsWith("\r\n") && !text.contains(",\r\n")) << file;
    }
}

INSTANTIATE_TEST_SUITE_P(Models, RoundTrip, testing::Range(0, 4));

TEST(Convert, knowsTheWordsOfEachModel)
{
    struct Case {
        int model;
        const char* line;
        int exitCode;
    };
    const std::vector<Case> cases{
        {2, "wVelmarn f../bank/1/52.dat tm.txt u352", 0}, {2, "wVelmarn f../bank/1/52.dat tm.txt u52", 4},
        {0, "wVelmaro f../bank/1/52.dat tm.txt u52", 0},  {0, "wVelmaro f../bank/1/52.dat tm.txt u352", 4},
        {3, "wDorvik f../bank/1/52.dat tm.txt u352", 0},  {3, "wDorvik f63.txt t63.dat d63", 1},
        {2, "wVelmarn f63.txt t63.dat d163", 1},          {2, "wDorvik f../bank/1/1.dat t1.txt u01", 3},
        {0, "wVelmarn f../bank/1/1.dat t1.txt u01", 3},
    };
    for (const auto& each : cases) {
        const ToolBench bench(1, each.model);
        EXPECT_EQ(bench.convert(q(each.line)).exitCode, each.exitCode) << each.line;
        if (each.exitCode == 0) {
            EXPECT_EQ(bench.read("work/m.txt").count(','), each.model == 0 ? 36 : 38) << each.line;
        }
    }
}

TEST(Convert, refusesATextThatDoesNotFitAndNamesThePlace)
{
    const ToolBench bench;
    struct Case {
        const char* operation;
        QByteArray text;
        const char* place; ///< as told on the error channel
    };
    const QByteArray group = "Hot Drinks  ,40,40\r\n";
    const std::vector<Case> cases{
        {"d01", "", "line 1:"},
        {"d01", "Hot Drinks  ,40\r\n", "line 1, column 3: 2 columns, 3 expected"},
        {"d01", group + "Hot Drinks  ,40,40,\r\n", "line 2, column 4: 4 columns, 3 expected"},
        {"d01", group + "Hot, Drinks ,40,40\r\n", "line 2, column 1:"},
        {"d01", group + group + "Hot Drinks,40,40\r\n", "line 3, column 1:"},
        {"d01", "Hot Drinks  ,48,40\r\n", "line 1, column 2:"},
        {"d01", "Hot Drinks  ,40,4\r\n", "line 1, column 3:"},
        {"d01", "Hot\tDrinks  ,40,40\r\n", "line 1, column 1:"},
        {"d01", "Hot Drinks  ,40,40\n", "line 1:"},
        {"d01", group + "Hot Drinks  ,40,40", "line 2:"},
        {"d01", group + "\r\n", "line 2, column 1:"},
        {"d58", "Coffee      ,g   ,-018\r\n", "line 1, column 3:"},
        {"d58", "Coffee      ,g   ,18.0\r\n", "line 1, column 3:"},
        {"d64", "0600,0759,30\r\n", "line 1, column 3:"},
        {"d06", "22,2468,0099,40," + QByteArray(59, '0') + "\r\n", "line 1, column 5:"},
        {"d06", "22,2468,0099,00," + QByteArray(60, '0') + "\r\n", "line 1, column 4:"},
        {"d06", "22,2468,0099,40," + QByteArray(59, '0') + "1\r\n", "line 1, column 5:"},
        {"d63", "A,B\r\n", "line 1, column 1:"},
    };
    for (const auto& each : cases) {
        bench.write("work/in.txt", each.text);
        bench.write("work/out.dat", "as it was");
        const auto ended = bench.convert(q("wVelmarn fin.txt tout.dat %1").arg(q(each.operation)));
        EXPECT_NE(ended.exitCode, 0) << each.text.toStdString();
        EXPECT_TRUE(ended.errors.contains(QByteArray("in.txt, ") + each.place)) << ended.errors.toStdString();
        EXPECT_EQ(bench.read("work/out.dat"), "as it was") << each.text.toStdString();
    }
}

TEST(Convert, refusesLinesAndBinariesThatAreNone)
{
    const ToolBench bench;
    bench.comm(q("s9 c1 N1.DAT -U 1"));
    bench.write("work/bad.dat", bench.read("work/1.DAT").chopped(3));
    bench.write("work/empty.dat", "");
    bench.write("work/1.txt", "as it was");
    // clang-format off
    for (const auto* line : {
            "", "wVelmarn f1.dat t1.txt", "wVelmarn f1.dat t1.txt u01 more", "Velmarn f1.dat t1.txt u01",
            "wvelmarn f1.dat t1.txt u01", "wVelmar f1.dat t1.txt u01", "wVelmarn t1.txt f1.dat u01",
            "wVelmarn f1.dat t1.txt u1", "wVelmarn f1.dat t1.txt u18", "wVelmarn f1.dat t1.txt U01",
            "wVelmarn f1.txt t1.dat d19", "wVelmarn f1.txt t1.dat d52", "wVelmarn f1.dat t1.txt S193",
            "wVelmarn f1.dat t1.txt u02", "wVelmarn f1.dat t1.txt S190", "wVelmarn fnone.dat t1.txt u01",
            "wVelmarn fbad.dat t1.txt u01", "wVelmarn fempty.dat t1.txt u01",
            "wVelmarn fempty.dat t1.txt u352", "wVelmarn f1.dat tnowhere/1.txt u01"}) {
        // clang-format on
        const auto ended = bench.convert(q(line));
        EXPECT_NE(ended.exitCode, 0) << line;
        EXPECT_FALSE(ended.errors.isEmpty()) << line;
        EXPECT_EQ(bench.read("work/1.txt"), "as it was") << line;
    }
    EXPECT_EQ(bench.convert(q("wVelmarn f1.dat t1.txt u01")).exitCode, 0) << "the name meets 1.DAT";
}

} // namespace
} // namespace bank::test
