// convert: every register file of every model to text and back, and what it refuses.
#include "ToolBench.h"

namespace bank::test
{
namespace
{

TEST(Convert, BringsEveryFileBackByteForByte)
{
    const QStringList models{u"Velmaro"_s, u"Velmaro"_s, u"Velmarn"_s, u"Dorvik"_s};
    for (int model = 0; model < models.size(); ++model) {
        const ToolBench bench(1, model);
        int files = 0;
        for (int file = 1; file <= 86; ++file) {
            const auto source = u"bank/1/%1.dat"_s.arg(file);
            const auto code = u"%1"_s.arg(file, 2, 10, QChar(u'0'));
            const auto up = u"w%1 f../%2 tout.txt u%3"_s.arg(models.at(model), source, code);
            if (file == 19 || file == 52 || bench.convert(up).exitCode != 0)
                continue; // These two are only ever fetched.
            ++files;
            const auto down = (file == 63 && model == 3 ? u"d1"_s : u"d"_s) + code;
            EXPECT_EQ(bench.convert(u"w%1 fout.txt tback.dat %2"_s.arg(models.at(model), down)).errors, "");
            EXPECT_EQ(bench.read("work/back.dat"), bench.read(source)) << file;
        }
        EXPECT_EQ(files, model == 0 ? 37 : 40);
    }
}

const QByteArray group = "Hot Drinks  ,40,40\r\n";
const struct {
    const char* operation;
    QByteArray text;
    const char* place; ///< as reported on standard error
} badTexts[] = {
    {"d01", "", "line 1:"},
    {"d01", "Hot Drinks  ,40\r\n", "line 1, column 3: 2 columns, 3 expected"},
    {"d01", group + "Hot Drinks  ,40,40,\r\n", "line 2, column 4: 4 columns, 3 expected"},
    {"d01", group + "Hot, Drinks ,40,40\r\n", "line 2, column 1:"},
    {"d01", group + group + "Hot Drinks,40,40\r\n", "line 3, column 1:"},
    {"d01", "Hot Drinks  ,48,40\r\n", "line 1, column 2:"},
    {"d01", "Hot\tDrinks  ,40,40\r\n", "line 1, column 1:"},
    {"d01", "Hot Drinks  ,40,40\n", "line 1:"},
    {"d01", group + "Hot Drinks  ,40,40", "line 2:"},
    {"d01", group + "\r\n", "line 2, column 1:"},
    {"d58", "Coffee      ,g   ,-018\r\n", "line 1, column 3:"},
    {"d64", "0600,0759,30\r\n", "line 1, column 3:"},
    {"d06", "22,2468,0099,40," + QByteArray(59, '0') + "\r\n", "line 1, column 5:"},
    {"d06", "22,2468,0099,00," + QByteArray(60, '0') + "\r\n", "line 1, column 4:"},
    {"d06", "22,2468,0099,40," + QByteArray(59, '0') + "1\r\n", "line 1, column 5:"},
    {"d63", "A,B\r\n", "line 1, column 1:"},
};

TEST(Convert, RefusesATextThatDoesNotFitAndNamesThePlace)
{
    const ToolBench bench;
    for (const auto& each : badTexts) {
        bench.write("work/in.txt", each.text);
        bench.write("work/out.dat", "as it was");
        const auto ended = bench.convert(u"wVelmarn fin.txt tout.dat %1"_s.arg(q(each.operation)));
        EXPECT_NE(ended.exitCode, 0) << each.text.toStdString();
        EXPECT_TRUE(ended.errors.contains(QByteArray("in.txt, ") + each.place)) << ended.errors.toStdString();
        EXPECT_EQ(bench.read("work/out.dat"), "as it was") << each.text.toStdString();
    }
}

/// By the exit code, lines separated by a semicolon.
const std::pair<int, const char*> badLines[] = {
    {1, "; wVelmarn f1.dat t1.txt; wVelmarn f1.dat t1.txt u01 more; Velmarn f1.dat t1.txt u01; "
        "wvelmarn f1.dat t1.txt u01; wVelmar f1.dat t1.txt u01; wVelmarn t1.txt f1.dat u01; "
        "wVelmarn f1.dat t1.txt u1; wVelmarn f1.dat t1.txt u18; wVelmarn f1.dat t1.txt U01; "
        "wVelmarn f1.txt t1.dat d19; wVelmarn f1.txt t1.dat d52; wVelmarn f1.dat t1.txt S193; "
        "wDorvik f63.txt t63.dat d63; wVelmarn f63.txt t63.dat d163"},
    {2, "wVelmarn fnone.dat t1.txt u01"},
    {3, "wVelmarn f1.dat t1.txt u02; wVelmarn f1.dat t1.txt S190; wDorvik f1.dat t1.txt u01; "
        "wVelmarn fempty.dat t1.txt u01; wVelmarn fempty.dat t1.txt u352"},
    {4, "wVelmarn fbad.dat t1.txt u01; wVelmarn fmem.dat t1.txt u52"},
    {6, "wVelmarn f1.dat tnowhere/1.txt u01"},
    {0, "wVelmarn fmem.dat tm.txt u352"},
};

TEST(Convert, RefusesBadCommandLinesAndBinaries)
{
    const ToolBench bench;
    bench.comm("s9 c1 N1.DAT -U 1");
    bench.comm("s9 c1 Nmem.DAT -U 52");
    bench.write("work/bad.dat", bench.read("work/1.DAT").chopped(3));
    bench.write("work/empty.dat", "");
    bench.write("work/1.txt", "as it was");
    for (const auto& [exitCode, lines] : badLines) {
        for (const QString& line : q(lines).split(u"; "_s)) {
            const auto ended = bench.convert(line);
            EXPECT_EQ(ended.exitCode, exitCode) << line.toStdString();
            EXPECT_EQ(ended.errors.isEmpty(), exitCode == 0) << line.toStdString();
            EXPECT_EQ(bench.read("work/1.txt"), "as it was") << line.toStdString();
        }
    }
}

} // namespace
} // namespace bank::test
