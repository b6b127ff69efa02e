// Sums in decimal, as a query gives them.
#include "tests/store/StoreFolder.h"

namespace norvane::store::test
{
namespace
{

class ExactSumTest : public testing::Test
{
protected:
    std::string answer(const QString& sql) { return rowsOf(m_folder.path(), sql); }
    std::string sumOf(const std::string& values)
    {
        return answer(u"select exact_sum(column1) from (values %1)"_s.arg(QString::fromStdString(values)));
    }

    StoreFolder m_folder;
};

constexpr std::pair<const char*, const char*> sums[] = {
    {"(0.1), (0.2), (-0.3)", "0"},
    {"(5639.55), (-0.0)", "5639.55"},
    {"(-1.5), (0.25)", "-1.25"},
    {"(0.00001), (1)", "1.00001"},
    {"(123456789012.345), (0.001)", "123456789012.346"},
    {"(1e22), (1), (0.1), (-1e22)", "1.1"},
    {"(-1e22), (0.5)", "-9999999999999999999999.5"},
    {"(5e-324), (1), (-5e-324)", "1"},
    {"('5639.55'), ('-0.005'), (' 1.5'), (2), (3.25)", "5646.295"},
    {"('12345678901234567890.12345'), (0.00005)", "12345678901234567890.1235"},
    {"(9223372036854775807), (9223372036854775807), (-9223372036854775807)", "9223372036854775807"},
    {"(null), ('x'), (x'31'), ('-'), ('1,5'), ('')", "0"},
};

TEST_F(ExactSumTest, AddsEveryDoubleAsItsShortestDecimal)
{
    for (const auto& [values, sum] : sums)
        EXPECT_EQ(sumOf(values), sum) << values;
    EXPECT_EQ(answer(u"select exact_sum(COUNT1) from Items"_s), "0") << "no rows at all";
    EXPECT_EQ(failureOf([&] { sumOf("(1), (9e999)"); }), 3061) << "an infinite number has no total";
}

TEST_F(ExactSumTest, AddsSeveralColumnsAtOnce)
{
    const QString rows = u"(values (1, 0.1, 'x', '2'), (1, 0.2, null, 1e22), (2, 9e999, 4, -3))"_s;
    EXPECT_EQ(answer(u"select exact_sums(column2, column3, column4) from %1 where column1 = 1"_s.arg(rows)),
              "0.3\t0\t10000000000000000000002");
    EXPECT_EQ(failureOf([&] { answer(u"select exact_sums(column1, column2) from "_s + rows); }), 3061);
    EXPECT_EQ(answer(u"select exact_sums(COUNT1) is null from Items"_s), "1") << "no rows at all";
}

TEST_F(ExactSumTest, LosesNothingOverManyRowsAndGroups)
{
    const QString rows = u"(with recursive n(i) as (select 1 union all select i + 1 from n where i < 100000) "
                         "select i % 2 as half, i / 100.0 as x, 90000000000.5 as large from n)"_s;
    EXPECT_EQ(answer(u"select exact_sum(x) || ' ' || exact_sum(large) from "_s + rows),
              "50000500 9000000000050000");
    EXPECT_EQ(
        answer(u"select exact_sum(s) from (select exact_sum(x) as s from "_s + rows + u" group by half)"_s),
        "50000500");
}

} // namespace
} // namespace norvane::store::test
