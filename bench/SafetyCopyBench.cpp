// Safety copies: of a large programme, and of years of sales beside a plain copy of the file.
// NORVANE_SALES_YEARS=10 makes ten years, in some minutes and six gigabytes of the temporary folder.
#include "bench/Shop.h"
#include "customers/SafetyCopies.h"

#include <benchmark/benchmark.h>
#include <QDir>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using bench::require;

class Shop : public bench::Shop
{
public:
    using bench::Shop::Shop;

    void copy(store::CopyOf what) const
    {
        const auto copy = customers::makeSafetyCopy(folder(), u"bench"_s, what);
        require(QFile::exists(copy.path + u"/velmar.mdb"_s), "copied");
    }
    void removeCopies() const { QDir(file("copies")).removeRecursively(); }
};

void CopyOfProgramme(benchmark::State& state)
{
    static const Shop shop("insert into PLUDATA (PLUNUMBER, DESCRIPTION, GROUPNO, PRICE1, PRICE2) " +
                           bench::numbersTo(100'000) +
                           "select printf('%018d', i), 'ARTICLE ' || i, i % 50, '1.25', '2.50' from n");
    for (auto _ : state) {
        shop.copy(store::CopyOf::Programme);
        state.PauseTiming();
        shop.removeCopies();
        state.ResumeTiming();
    }
}
BENCHMARK(CopyOfProgramme)->Unit(benchmark::kMillisecond);

/// Both end when the copy is on the disk.
void CopyWithSales(benchmark::State& state)
{
    static const Shop shop("insert into PLUSALES " + bench::numbersTo(bench::salesYears(1) * 365) +
                           ", p(k) as (select 1 union all select k + 1 from p where k < 5000) select "
                           "printf('%018d', k), date('2026-12-31', '-' || i || ' days'), 0, 0, k % 50, (k % "
                           "50) * 1.25, 0, 0, 0, 0, 0, 0, 0, "
                           "0 from n, p");
    const QString plain = shop.folder() + u"/plain"_s;
    const auto copyPlainly = [&] {
        require(QFile::copy(shop.database(), plain), "plain copy");
        QFile::remove(plain);
    };
    // The first one also waits for what the making of the shop left to write.
    copyPlainly();
    (void)bench::compare(
        state,
        [&] {
            shop.copy(store::CopyOf::Everything);
            shop.removeCopies();
        },
        copyPlainly);
}
BENCHMARK(CopyWithSales)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace

BENCHMARK_MAIN();
