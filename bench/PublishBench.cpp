// Years of a shop's days on their way into PostgreSQL, beside psql's own \copy of the same rows into the same
// partitioned table, and one more day. Times by the clock, since most of the work is the server's. A run
// makes two months; NORVANE_SALES_YEARS=10 makes ten years, in some ten minutes and ten gigabytes of the
// temporary folder. The server does not wait for its disk: that would be the same for both.
#include "bench/GrowingShop.h"
#include "bench/Memory.h"
#include "chain/ChainSchema.h"
#include "chain/Publisher.h"
#include "tests/support/PostgresServer.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <ctime>
#include <memory>
#include <sys/resource.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using bench::require;

constexpr int fewDays = 60;
constexpr int laterDays = 10;

class PublishedShop : public bench::GrowingShop
{
public:
    [[nodiscard]] chain::ShopFolder shopFolder() const { return {u"BENCH"_s, folder(), database()}; }

    void growBy(int days)
    {
        store::Database open(database());
        for (int day = 0; day < days; ++day)
            appendDay(open);
    }
};

int daysWanted()
{
    const int years = bench::salesYears(0);
    return years > 0 ? years * bench::GrowingShop::daysPerYear : fewDays;
}

const QString chainDatabase = u"chain"_s;

test::PostgresServer& server()
{
    static const auto running = [] {
        auto made =
            std::make_unique<test::PostgresServer>(QStringList{u"fsync=off"_s, u"max_wal_size=8GB"_s});
        require(made->start(), "server");
        made->makeDatabase(chainDatabase);
        return made;
    }();
    return *running;
}

PublishedShop& shop()
{
    static PublishedShop grown;
    return grown;
}

/// Runs psql to its end, however long that takes.
void psql(const QString& command)
{
    QProcess process;
    server().queryMeanwhile(process, chainDatabase, command);
    require(process.waitForFinished(-1) && process.exitCode() == 0,
            process.readAllStandardError().append(command.toUtf8()).constData());
}

/// Once for a chain, as "chain init" does; psql finds its tables made, too.
void makeSchema()
{
    chain::Server connection(server().connection(chainDatabase));
    chain::prepareSchema(connection);
}

chain::Published publish()
{
    chain::Server connection(server().connection(chainDatabase));
    chain::prepareSchema(connection);
    return chain::publishShop(connection, shop().shopFolder(), {});
}

/// Processor seconds of this process, of the programs that it ran to their ends, and of the server's
/// connections that have ended.
double processorSeconds()
{
    QFile account(u"/proc/%1/stat"_s.arg(server().processId()));
    require(account.open(QIODevice::ReadOnly), "account of the server");
    const QByteArrayList fields = account.readAll().split(' ');
    const double ticks = fields.at(15).toDouble() + fields.at(16).toDouble();
    rusage programs{};
    getrusage(RUSAGE_CHILDREN, &programs);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return ticks / static_cast<double>(sysconf(_SC_CLK_TCK)) + seconds(programs.ru_utime) +
           seconds(programs.ru_stime) + static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

/// What a piece of work takes by the clock, and of the processor in all programs together.
template <typename Work>
bench::Cost costOf(Work work)
{
    const double before = processorSeconds();
    bench::Cost cost;
    cost.elapsed = bench::secondsOf(work);
    // A connection is accounted for when the server has seen its end.
    QThread::msleep(500);
    cost.processor = processorSeconds() - before;
    return cost;
}

/// The same rows into a table of the same shape, with the same partitions.
bench::Cost bareCost()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"rows"_s);
    psql(u"\\copy (SELECT * FROM norvane.plu_sales ORDER BY day, plu) TO '%1'"_s.arg(file));
    psql(u"CREATE SCHEMA bare; CREATE TABLE bare.plu_sales (LIKE norvane.plu_sales INCLUDING ALL) PARTITION "
         u"BY RANGE (day); "
         "DO $$ DECLARE part regclass; BEGIN FOR part IN SELECT inhrelid::regclass FROM pg_inherits "
         "WHERE inhparent = 'norvane.plu_sales'::regclass LOOP "
         "EXECUTE format('CREATE TABLE bare.%I PARTITION OF bare.plu_sales %s', "
         "(SELECT relname FROM pg_class WHERE oid = part), "
         "(SELECT pg_get_expr(relpartbound, oid) FROM pg_class WHERE oid = part)); END LOOP; END $$"_s);
    return costOf([&] { psql(u"\\copy bare.plu_sales FROM '%1'"_s.arg(file)); });
}

void publishYears(benchmark::State& state)
{
    const int days = static_cast<int>(state.range(0));
    shop().growBy(days);
    makeSchema();
    bench::resetPeak();
    const auto before = bench::statusBytes("VmRSS:");
    for (auto _ : state) {
        const bench::Cost ours = costOf([days] { require(publish().days == days, "all days"); });
        state.counters["memory_mb"] =
            static_cast<double>(bench::statusBytes("VmHWM:") - before) / (1024 * 1024);
        const bench::Cost bare = bareCost();
        state.SetIterationTime(ours.elapsed);
        state.counters["ratio"] = ours.processor / bare.processor;
        state.counters["clock_ratio"] = ours.elapsed / bare.elapsed;
        state.counters["bare_s"] = bare.elapsed;
        state.counters["bare_processor_s"] = bare.processor;
    }
}

/// The connection included.
void publishOneDay(benchmark::State& state)
{
    double processor = 0;
    for (auto _ : state) {
        shop().growBy(1);
        const bench::Cost cost = costOf([] { require(publish().days == 1, "one day"); });
        state.SetIterationTime(cost.elapsed);
        processor += cost.processor;
    }
    state.counters["processor_ms"] = processor * 1000 / static_cast<double>(state.iterations());
}

void publishNothing(benchmark::State& state)
{
    for (auto _ : state)
        require(publish().days == 0, "no day");
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const int days = daysWanted();
    benchmark::RegisterBenchmark("publishYears", publishYears)
        ->Arg(days)
        ->Iterations(1)
        ->UseManualTime()
        ->Unit(benchmark::kSecond);
    benchmark::RegisterBenchmark("publishOneDay", publishOneDay)
        ->Arg(days)
        ->Iterations(laterDays)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("publishNothing", publishNothing)
        ->Arg(days)
        ->Iterations(laterDays)
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks();
}
