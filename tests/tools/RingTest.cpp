// ringsales: which sales a seed and a key give.
#include "ToolBench.h"

namespace bank::test
{
namespace
{

constexpr int registers = 3;

QByteArray journal(const ToolBench& bench, const QString& options)
{
    const auto words = u"%1 --tickets 80 --journal day.csv %2"_s.arg(bench.path("bank"), options);
    const auto ended = bench.run(RINGSALES, words);
    EXPECT_EQ(ended.exitCode, 0) << ended.errors.constData();
    return bench.read("work/day.csv");
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
