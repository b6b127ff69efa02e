// makebank: the same bank every time, kept unless --fresh is given, of the requested size.
#include "ToolBench.h"

namespace bank::test
{
namespace
{

TEST(MakeBank, MakesTheSameRegistersAndKeepsThemUnlessFresh)
{
    const ToolBench bench(2);
    const ToolBench other(2);
    const auto names = QDir(bench.path("bank/1")).entryList(QDir::Files);
    EXPECT_GT(names.size(), 60);
    for (const auto& name : names)
        EXPECT_EQ(bench.read(u"bank/1/"_s + name), other.read(u"bank/1/"_s + name)) << name.toStdString();

    bench.write("bank/1/1.dat", "changed");
    bench.write("bank/notes.txt", "mine");
    EXPECT_EQ(bench.run(MAKEBANK, bench.path("bank") + u" --registers 3"_s).exitCode, 0);
    EXPECT_EQ(bench.read("bank/1/1.dat"), "changed");
    EXPECT_FALSE(bench.has("bank/3"));

    bench.write("bank/2/register.ini", "damaged");
    EXPECT_EQ(bench.run(MAKEBANK, bench.path("bank") + u" --registers 1 --fresh"_s).exitCode, 0);
    EXPECT_EQ(bench.read("bank/1/1.dat"), other.read("bank/1/1.dat"));
    EXPECT_FALSE(bench.has("bank/2"));
    EXPECT_EQ(bench.read("bank/notes.txt"), "mine");
}

} // namespace
} // namespace bank::test
