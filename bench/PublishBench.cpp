// Years of a shop's days on their way into PostgreSQL, beside psql's own \copy of the same rows into the same
// partitioned table, and one more day. Times by the clock, since most of the work is the server's. A run
// makes two months; NORVANE_SALES_YEARS=10 makes ten years, in some ten minutes and ten gigabytes of the
// temporary folder. The server does not wait for its disk: that would be the same for both.
#include "bench/Ratio.h"
#include "chain/ChainSchema.h"
#include "chain/Publisher.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Recordset.h"
#include "store/sales/RowAppend.h"
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
using store::Value;

constexpr int plusPerDay = 5000;
constexpr int daysPerYear = 365;
constexpr int fewDays = 60;
constexpr int laterDays = 10;

class GrowingShop
{
public:
    GrowingShop() { store::Database::create(path(), store::catalogue()); }

    [[nodiscard]] chain::ShopFolder folder() const { return {u"BENCH"_s, m_folder.path(), path()}; }

    void growBy(int days)
    {
        store::Database database(path());
        for (int day = 0; day < days; ++day)
            appendDay(database);
    }

private:
    [[nodiscard]] QString path() const { return m_folder.filePath(u"velmar.mdb"_s); }

    void appendDay(store::Database& database)
    {
        store::CommitOnExit transaction(database);
        store::Recordset sales = database.openTable(u"PLUSALES"_s);
        {
            const store::RowAppend append(database, transaction, u"PLUSALES"_s);
            for (int plu = 0; plu < plusPerDay; ++plu)
                addRow(sales, plu);
        }
        transaction.commit();
        ++m_days;
    }

    void addRow(store::Recordset& sales, int plu) const
    {
        const int count = (plu * 31 + m_days * 7) % 50;
        sales.addNew();
        sales.setValue("ID"_L1, Value::text(u"%1"_s.arg(plu, 18, 10, QLatin1Char('0'))));
        sales.setValue("SALESDATE"_L1, Value::date(QDate(2017, 1, 1).addDays(m_days)));
        sales.setValue("PROMO"_L1, Value::whole(0));
        sales.setValue("WASTE"_L1, Value::whole(0));
        sales.setValue("COUNT1"_L1, Value::whole(count));
        sales.setValue("VALUE1"_L1, Value::number(count * 1.25));
        sales.update();
    }

    QTemporaryDir m_folder;
    int m_days = 0;
};

int daysWanted()
{
    const int years = qEnvironmentVariableIntValue("NORVANE_SALES_YEARS");
    return years > 0 ? years * daysPerYear : fewDays;
}

const QString database = u"chain"_s;

test::PostgresServer& server()
{
    static const auto running = [] {
        auto made =
            std::make_unique<test::PostgresServer>(QStringList{u"fsync=off"_s, u"max_wal_size=8GB"_s});
        require(made->start(), "server");
        made->makeDatabase(database);
        return made;
    }();
    return *running;
}

GrowingShop& shop()
{
    static GrowingShop grown;
    return grown;
}

/// Runs psql to its end, however long that takes.
void psql(const QString& command)
{
    QProcess process;
    server().queryMeanwhile(process, database, command);
    require(process.waitForFinished(-1) && process.exitCode() == 0,
            process.readAllStandardError().append(command.toUtf8()).constData());
}

chain::Published publish()
{
    chain::Server connection(server().connection(database));
    chain::prepareSchema(connection);
    return chain::publishShop(connection, shop().folder(), {});
}

/// A line of the system's account of this process, in megabytes.
double megabytes(const QByteArray& line)
{
    QFile status(u"/proc/self/status"_s);
    require(status.open(QIODevice::ReadOnly), "status");
    const QByteArray all = status.readAll();
    const auto at = all.indexOf(line) + line.size();
    return all.mid(at, all.indexOf("kB", at) - at).trimmed().toDouble() / 1024;
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

/// From now on the peak is counted again.
void forgetPeak()
{
    QFile file(u"/proc/self/clear_refs"_s);
    require(file.open(QIODevice::WriteOnly) && file.write("5") == 1, "peak");
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
    forgetPeak();
    const double before = megabytes("VmRSS:");
    for (auto _ : state) {
        const bench::Cost ours = costOf([days] { require(publish().days == days, "all days"); });
        state.counters["memory_mb"] = megabytes("VmHWM:") - before;
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
    for (auto _ : state) {
        shop().growBy(1);
        state.SetIterationTime(bench::secondsOf([] { require(publish().days == 1, "one day"); }));
    }
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
