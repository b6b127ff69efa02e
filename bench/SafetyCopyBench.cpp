// Safety copies: of a large programme, and of years of sales beside a plain copy of the file.
// NORVANE_SALES_YEARS=10 makes ten years, in some minutes and six gigabytes of the temporary folder.
#include "bench/BareDatabase.h"
#include "customers/SafetyCopies.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/Database.h"

#include <benchmark/benchmark.h>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using bench::require;

class Shop
{
public:
    explicit Shop(const std::string& rows)
    {
        store::Database::create(database(), store::catalogue());
        bench::BareDatabase(database()).run(("begin;" + rows + ";commit").c_str());
    }
    [[nodiscard]] QString path() const { return m_folder.path(); }
    [[nodiscard]] QString database() const { return m_folder.filePath(u"velmar.mdb"_s); }

    void copy(store::CopyOf what) const
    {
        const auto copy = customers::makeSafetyCopy(path(), u"bench"_s, what);
        require(QFile::exists(copy.path + u"/velmar.mdb"_s), "copied");
    }
    void removeCopies() const { QDir(m_folder.filePath(u"copies"_s)).removeRecursively(); }

private:
    QTemporaryDir m_folder;
};

void CopyOfProgramme(benchmark::State& state)
{
    static const Shop shop("insert into PLUDATA (PLUNUMBER, DESCRIPTION, GROUPNO, PRICE1, PRICE2) with "
                           "recursive n(i) as (select 1 "
                           "union all select i + 1 from n where i < 100000) select "
                           "substr('000000000000000000' || i, -18), 'ARTICLE ' "
                           "|| i, i % 50, '1.25', '2.50' from n");
    for (auto _ : state) {
        shop.copy(store::CopyOf::Programme);
        state.PauseTiming();
        shop.removeCopies();
        state.ResumeTiming();
    }
}
BENCHMARK(CopyOfProgramme)->Unit(benchmark::kMillisecond);

int years()
{
    const char* const wish = std::getenv("NORVANE_SALES_YEARS");
    return wish ? std::max(1, std::atoi(wish)) : 1;
}

/// Both end when the copy is on the disk.
void CopyWithSales(benchmark::State& state)
{
    static const Shop shop(
        "insert into PLUSALES with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
        std::to_string(years() * 365) +
        "), p(k) as (select 1 union all select k + 1 from p where k < 5000) select "
        "substr('000000000000000000' || k, "
        "-18), date('2026-12-31', '-' || i || ' days'), 0, 0, k % 50, (k % 50) * 1.25, 0, 0, 0, 0, 0, 0, 0, "
        "0 "
        "from n, p");
    const QString plain = shop.path() + u"/plain"_s;
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
