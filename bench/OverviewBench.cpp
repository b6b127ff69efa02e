// Reading the overview of a shop with 5,000 PLUs and years of sales while its main window waits.
// NORVANE_SALES_YEARS=10 makes ten years, in some minutes and six gigabytes of the temporary folder.
#include "bench/Ratio.h"
#include "bench/Shop.h"
#include "customers/CustomerLog.h"
#include "sales/LastCollection.h"
#include "shell/ShopOverview.h"

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using bench::require;

const QDateTime now(QDate(2026, 12, 31), QTime(8, 0));
constexpr int logLines = 12'000; ///< as long as a log can be

/// Rows of each day from yesterday back: @p items of them, with @p values after the day.
std::string days(const char* table, const char* item, const char* values, int items)
{
    return std::string("insert into ") + table + ' ' + bench::numbersTo(bench::salesYears(1) * 365) +
           ", p(k) as (select 1 union all select k + 1 from p where k < " + std::to_string(items) +
           ") select " + item + ", date('2026-12-31', '-' || i || ' days'), " + values + " from n, p;";
}

/// A shop whose registers were not cleared last, so that the rows of that day are counted, too.
class OldShop : public bench::Shop
{
public:
    OldShop()
        : Shop(days("PLUSALES", "printf('%018d', k)", "0, 0, k % 50, (k % 50) * 1.25, 0, 0, 0, 0, 0, 0, 0, 0",
                    5000) +
               days("FINANCIALSALES", "k", "1, k * 1.05", 118) + days("TIMESALES", "k", "1, k * 1.05", 24))
    {
        sales::LastCollection last;
        last.mark = "mark";
        last.stored = now.addDays(-1);
        last.rowsOfDay = 5000 + 118 + 24;
        last.uncleared = sales::Uncleared{8, false};
        sales::noteLastCollection(values, last);
        for (int line = 0; line < logLines; ++line) {
            customers::writeLog(folder(), {now.addSecs(-3600LL * (logLines - line)), u"collection"_s,
                                           u"registers 1 to 3"_s, u"stopped"_s, 100});
        }
    }
};

void ReadOverview(benchmark::State& state)
{
    static const OldShop shop;
    bench::Times times;
    for (auto _ : state) {
        times.add([] {
            const auto overview = shell::readOverview(shop.values, now, shell::unreadUnsent());
            require(overview.lines.at(0).needsAttention && overview.lines.at(1).bars.at(5).isCollected,
                    "read");
        });
    }
    times.report(state);
}
BENCHMARK(ReadOverview)->Unit(benchmark::kMillisecond);

/// In a thread of its own.
void ReadUnsent(benchmark::State& state)
{
    static const bench::Shop shop(
        "insert into PLUDATA (PLUNUMBER, DESCRIPTION, GROUPNO, PRICE1, PRICE2) " + bench::numbersTo(5000) +
        "select printf('%018d', i), 'ARTICLE ' || i, i % 50, '1.25', '2.50' from n");
    for (auto _ : state) {
        const auto line = shell::readUnsent(shop.values, [] { return true; });
        require(line.text == u"5000 records not sent (PLU)"_s, "compared");
    }
}
BENCHMARK(ReadUnsent)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
