// A chain of many shops in PostgreSQL, and how long the queries of docs/chain.md take in it. The days are
// made by the server; months are added up as publications do it. NORVANE_CHAIN_SHOPS=300 and
// NORVANE_CHAIN_MONTHS=12 make 14 million rows of PLU sales, in some five minutes and three gigabytes of the
// temporary folder. A run without them makes a small chain. As in a shop, two of five PLUs are sold on a day.
#include "bench/Memory.h"
#include "chain/ChainPages.h"
#include "chain/ChainSchema.h"
#include "chain/Partitions.h"
#include "chain/Rollups.h"
#include "platform/Dates.h"
#include "tests/support/PostgresServer.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <limits>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using bench::require;

int numberFrom(const char* variable, int otherwise)
{
    bool isSet = false;
    const int number = qEnvironmentVariableIntValue(variable, &isSet);
    return isSet ? number : otherwise;
}

const QString chainDatabase = u"chain"_s;

/// As docs/chain.md advises.
std::unique_ptr<test::PostgresServer> startedServer()
{
    auto server = std::make_unique<test::PostgresServer>(
        QStringList{u"fsync=off"_s, u"max_wal_size=8GB"_s, u"shared_buffers=1GB"_s, u"work_mem=64MB"_s,
                    u"jit=off"_s, u"random_page_cost=1.1"_s});
    require(server->start(), "server");
    server->makeDatabase(chainDatabase);
    return server;
}

/// What a month of $1 shops from the day $2 until before $3 is made of.
constexpr auto monthStatements = std::to_array<const char*>({
    "INSERT INTO plu_sales SELECT s, $2::date + d, lpad(p::text, 4, '0'), 0, 0, q, q * (1 + p * 0.05), "
    "0, 0, 0, 0, 0, 0, 0, 0 FROM generate_series(0, $3::date - $2::date - 1) d, generate_series(1, $1) s, "
    "generate_series(1, 329) p, LATERAL (SELECT 1 + (p * 7 + d * 3 + s) % 9 AS q) x "
    "WHERE (p * 31 + d * 17 + s * 13) % 100 < 39 ORDER BY d, s",
    "INSERT INTO time_sales SELECT s, $2::date + d, p, 5 + (p + d + s) % 7, (5 + (p + d + s) % 7) * 4.35 "
    "FROM generate_series(0, $3::date - $2::date - 1) d, generate_series(1, $1) s, generate_series(8, 21) p "
    "ORDER BY d, s",
    "INSERT INTO published_days (shop, day, digest, row_count, quantity, takings, net_sales, rolled_up) "
    "SELECT shop, day, md5(shop || ' ' || day), count(*), sum(count1), sum(value1), sum(value1), true "
    "FROM plu_sales WHERE shop <= $1 AND day >= $2 AND day < $3 GROUP BY shop, day",
});

constexpr auto nameStatements = std::to_array<const char*>({
    "INSERT INTO shops (shop, name, folded_name, folder_id) "
    "SELECT s, 'Shop ' || s, 'shop ' || s, gen_random_uuid() FROM generate_series(1, $1) s",
    "INSERT INTO groups SELECT s, g, 'Group ' || g FROM generate_series(1, $1) s, generate_series(1, 20) g",
    "INSERT INTO plus (shop, plu, description, group_no) SELECT s, lpad(p::text, 4, '0'), 'PLU ' || p, "
    "1 + p % 20 FROM generate_series(1, $1) s, generate_series(1, 329) p",
    "INSERT INTO time_periods SELECT s, p, p || ':00', p + 1 || ':00' FROM generate_series(1, $1) s, "
    "generate_series(1, 24) p",
});

/// The month of today is the last one, until yesterday.
void makeMonth(chain::Server& server, int shops, QDate month)
{
    chain::makePartitions(server, month);
    const QDate end = std::min(month.addMonths(1), QDate::currentDate());
    server.transact([&](pqxx::work& work) {
        for (const char* statement : monthStatements)
            work.exec_params0(statement, shops, isoDay(month), isoDay(end));
    });
    server.transact([&](pqxx::work& work) {
        for (int shop = 1; shop <= shops; ++shop)
            chain::rollUp(work, shop, month);
    });
}

void makeChain(chain::Server& server)
{
    const int shops = numberFrom("NORVANE_CHAIN_SHOPS", 10);
    chain::prepareSchema(server);
    server.transact([&](pqxx::work& work) {
        for (const char* statement : nameStatements)
            work.exec_params0(statement, shops);
    });
    const QDate now = QDate::currentDate();
    for (int back = numberFrom("NORVANE_CHAIN_MONTHS", 3) - 1; back >= 0; --back)
        makeMonth(server, shops, QDate(now.year(), now.month(), 1).addMonths(-back));
}

/// A query, in which {since} and {until} are a range: as a report names it, with days as constants.
struct Query {
    const char* name;
    const char* sql;
    int daysBack; ///< of the range, which ends nine days ago
};
constexpr auto queries = std::to_array<Query>({
    {"groupsOfThreeWeeks",
     "SELECT shop_name, group_name, takings FROM group_takings({since}, {until}) "
     "WHERE takings > 3000 ORDER BY shop_name, takings DESC",
     22},
    {"groupsOfAYear",
     "SELECT group_name, sum(takings) FROM group_takings({since}, {until}) GROUP BY group_name", 355},
    {"bestSellers",
     "SELECT shop_name, rank, description, quantity, takings FROM best_sellers "
     "WHERE rank <= 3 ORDER BY shop_name, rank",
     0},
    {"shopsWithoutCollection", "SELECT * FROM shops_without_collection_yesterday", 0},
    {"takingsByShop", "SELECT * FROM takings_by_shop", 0},
    {"takingsOfAMonth",
     "SELECT day, sum(takings) FROM takings_by_day WHERE day BETWEEN {since} AND {until} "
     "GROUP BY day",
     30},
    {"groupsByDay",
     "SELECT day, group_name, sum(takings) FROM takings_by_group "
     "WHERE day BETWEEN {since} AND {until} GROUP BY day, group_name",
     7},
    {"onePluOfAllShops",
     "SELECT shop_name, quantity, takings FROM plu_takings({since}, {until}) "
     "WHERE plu = '0007'",
     355},
    {"plusOfOneShop", "SELECT plu, takings FROM plu_takings({since}, {until}) WHERE shop_name = 'Shop 7'",
     355},
    {"hoursOfAYear", "SELECT starts_at, sum(takings) FROM time_takings({since}, {until}) GROUP BY starts_at",
     355},
});

std::string textOf(const Query& query)
{
    constexpr int lastBack = 9;
    const auto day = [](int back) {
        return u"'%1'"_s.arg(QDate::currentDate().addDays(-back).toString(Qt::ISODate));
    };
    return QString::fromUtf8(query.sql)
        .replace(u"{since}"_s, day(lastBack + query.daysBack))
        .replace(u"{until}"_s, day(lastBack))
        .toStdString();
}

/// The best of some: other programs of the machine disturb.
void ask(chain::Server& server, const Query& query, benchmark::State& state)
{
    constexpr int tries = 7;
    const std::string sql = textOf(query);
    for (auto _ : state) {
        double best = std::numeric_limits<double>::max();
        for (int each = 0; each < tries; ++each) {
            server.transact([&](pqxx::work& work) {
                best = std::min(best,
                                bench::secondsOf([&] { benchmark::DoNotOptimize(work.exec(sql).size()); }));
            });
        }
        state.SetIterationTime(best);
    }
}

/// A page for each shop and one for all.
void writePages(chain::Server& server, benchmark::State& state)
{
    const QTemporaryDir folder;
    for (auto _ : state) {
        state.SetIterationTime(bench::secondsOf(
            [&] { benchmark::DoNotOptimize(chain::writeChainPages(server, folder.path())); }));
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const auto postgres = startedServer();
    chain::Server server(postgres->connection(chainDatabase));
    makeChain(server);
    require(postgres->query(chainDatabase, u"VACUUM ANALYZE"_s).isEmpty(), "statistics");
    for (const Query& query : queries) {
        benchmark::RegisterBenchmark(query.name, [&](benchmark::State& state) { ask(server, query, state); })
            ->Iterations(1)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::RegisterBenchmark("pages", [&](benchmark::State& state) { writePages(server, state); })
        ->Iterations(1)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks();
}
