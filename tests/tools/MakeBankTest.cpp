// makebank: the same bank every time, kept unless asked for anew, of the size asked for.
#include "ToolBench.h"

#include <set>

namespace bank::test
{
namespace
{

TEST(MakeBank, makesTheSameRegisterEveryTime)
{
    const ToolBench first;
    const ToolBench second;
    const auto names = QDir(first.path("bank/1")).entryList(QDir::Files);
    EXPECT_GT(names.size(), 60);
    for (const auto& name : names)
        EXPECT_EQ(first.read(q("bank/1/") + name), second.read(q("bank/1/") + name)) << name.toStdString();
}

TEST(MakeBank, keepsABankUnlessAskedForAFreshOne)
{
    const ToolBench bench(2);
    const auto factory = bench.read("bank/1/1.dat");
    bench.write("bank/1/1.dat", "changed");
    bench.write("bank/notes.txt", "mine");
    EXPECT_EQ(bench.run(MAKEBANK, bench.path("bank") + q(" --registers 3")).exitCode, 0);
    EXPECT_EQ(bench.read("bank/1/1.dat"), "changed");
    EXPECT_FALSE(bench.has(q("bank/3")));

    bench.write("bank/2/register.ini", "damaged");
    EXPECT_EQ(bench.run(MAKEBANK, bench.path("bank") + q(" --registers 1 --fresh")).exitCode, 0);
    EXPECT_EQ(bench.read("bank/1/1.dat"), factory);
    EXPECT_FALSE(bench.has(q("bank/2")));
    EXPECT_EQ(bench.read("bank/notes.txt"), "mine");
}

TEST(MakeBank, fillsAsManyPlusAsAskedFor)
{
    for (const int plus : {5, 2000}) {
        const ToolBench bench(1, 3, q("--plus %1").arg(plus));
        EXPECT_EQ(bench.convert(q("wDorvik f../bank/1/67.dat t67.txt u67")).errors, "");
        EXPECT_EQ(bench.convert(q("wDorvik f../bank/1/71.dat t71.txt u71")).errors, "");
        const auto text = bench.read("work/67.txt");
        EXPECT_EQ(text.count('\n'), plus);
        EXPECT_EQ(bench.read("work/71.txt").count('\n'), plus);
        std::set<QByteArray> numbers;
        const auto lines = text.trimmed().split('\n');
        for (const auto& line : lines)
            numbers.insert(line.left(18));
        EXPECT_EQ(numbers.size(), static_cast<std::size_t>(plus)) << "every PLU has a number of its own";
    }
}

TEST(MakeBank, refusesWishesOutOfRange)
{
    const ToolBench bench;
    for (const auto* words : {"", "a b", "new --registers 0", "new --registers 33", "new --model 4",
                              "new --plus x", "new --colour red"})
        EXPECT_EQ(bench.run(MAKEBANK, q(words)).exitCode, 1) << words;
    EXPECT_FALSE(bench.has(q("work/new")));
}

} // namespace
} // namespace bank::test
