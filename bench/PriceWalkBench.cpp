// The conversion of all prices to euro beside the least that could do it: a select walked in the order of the
// PLU numbers and a prepared update, in one transaction. What lets the window answer is measured apart.
#include "bench/BareDatabase.h"
#include "shell/FrmMain.h"
#include "shell/LongWork.h"
#include "store/Catalogue.h"
#include "store/Database.h"
#include "tests/support/RecordingBoxes.h"
#include "utilities/PriceUtilities.h"

#include <benchmark/benchmark.h>
#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace
{

using namespace norvane;
using bench::BareDatabase;
using bench::require;

constexpr int pluCount = 100000;
constexpr int prices = 5;

void fillWithPlus(const QString& path)
{
    store::Database::create(path, store::catalogue());
    const BareDatabase database(path);
    database.run("begin");
    sqlite3_stmt* insert = database.prepare(
        "insert into PLUDATA (PLUNUMBER, DESCRIPTION, PRICE1, PRICE2, PRICE3, "
        "PRICE4, PRICE5) values (printf('%018d', ?1), 'Article ' || ?1, ?2, ?3, ?4, ?5, ?6)");
    for (int plu = 1; plu <= pluCount; ++plu) {
        sqlite3_bind_int(insert, 1, plu);
        for (int price = 1; price <= prices; ++price) {
            const int cents = (plu * 31 + price * 17) % 100000;
            std::array<char, 16> text{};
            std::snprintf(text.data(), text.size(), "%d.%02d", cents / 100, cents % 100);
            bench::bindText(insert, price + 1, text.data());
        }
        bench::runOnce(insert);
    }
    sqlite3_finalize(insert);
    database.run("commit");
}

/// Two databases of the same PLUs, ours and the bare walk's.
class Shop
{
public:
    Shop()
    {
        for (const QString& path : {ours(), bare()})
            fillWithPlus(path);
    }
    [[nodiscard]] QString ours() const { return m_folder.filePath(QStringLiteral("velmar.mdb")); }
    [[nodiscard]] QString bare() const { return m_folder.filePath(QStringLiteral("bare.mdb")); }

    /// All euro prices of a database added up.
    [[nodiscard]] static double sum(const QString& path)
    {
        return BareDatabase(path).number(
            "select sum(EuroPrice1 + europrice2 + europrice3 + europrice4 + europrice5) from PLUDATA");
    }
    /// As the rates go up the sums go down; the bare walk rounds in another way, by a cent at times.
    void checkSums() const
    {
        const double total = sum(ours());
        require(total > 0 && std::abs(total / sum(bare()) - 1) < 1e-5, "all prices converted");
    }

private:
    QTemporaryDir m_folder;
};

const utilities::PriceUtility& conversion()
{
    const auto all = utilities::priceUtilities();
    return *std::find_if(all.begin(), all.end(), [](const utilities::PriceUtility& utility) {
        return utility.handler == QLatin1String("TransferEuro_Click");
    });
}

/// A rate that no walk before had: without one nothing would change.
class Rates
{
public:
    double next() { return 0.5 + ++m_walks * 0.0001; }

private:
    int m_walks = 0;
};

void convertAll(const QString& path, double rate, const utilities::WalkFrame& frame)
{
    test::RecordingBoxes boxes;
    boxes.answers.push_back(true);
    boxes.typed.push_back(QString::number(rate));
    utilities::runPriceUtility(conversion(), path, boxes, frame);
    require(boxes.shown.size() == 3, "the question, the rate and the end");
}

void bareConvertAll(const QString& path, double rate)
{
    const BareDatabase database(path);
    database.run("begin");
    sqlite3_stmt* select = database.prepare(
        "select _rowid_, PRICE1, PRICE2, PRICE3, PRICE4, PRICE5 from PLUDATA order by PLUNUMBER");
    sqlite3_stmt* update = database.prepare("update PLUDATA set EuroPrice1=?, europrice2=?, europrice3=?, "
                                            "europrice4=?, europrice5=? where _rowid_=?");
    while (sqlite3_step(select) == SQLITE_ROW) {
        for (int price = 1; price <= prices; ++price) {
            std::array<char, 32> text{};
            std::snprintf(text.data(), text.size(), " %.2f", sqlite3_column_double(select, price) / rate);
            bench::bindText(update, price, text.data());
        }
        sqlite3_bind_int64(update, prices + 1, sqlite3_column_int64(select, 0));
        bench::runOnce(update);
    }
    sqlite3_finalize(update);
    sqlite3_finalize(select);
    database.run("commit");
}

void euroConversion(benchmark::State& state)
{
    const Shop shop;
    Rates rates;
    double rate = 0;
    // The bare walk goes first and takes the new rate for both.
    bench::compare(
        state,
        [&] {
            convertAll(shop.ours(), rate,
                       {[] {},
                        [] {
                        }});
        },
        [&] {
            rate = rates.next();
            bareConvertAll(shop.bare(), rate);
        });
    shop.checkSums();
}

/// How long a user's click would have waited: the longest time between two turns of the event loop.
class LongestWait
{
public:
    LongestWait()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            m_longest = std::max(m_longest, m_since.nsecsElapsed());
            m_since.restart();
        });
        m_timer.start(0);
        m_since.start();
    }
    /// The time since the last turn counts too.
    [[nodiscard]] double milliseconds() const
    {
        constexpr double nanosecond = 1e-6;
        return static_cast<double>(std::max(m_longest, m_since.nsecsElapsed())) * nanosecond;
    }

private:
    QTimer m_timer;
    QElapsedTimer m_since;
    qint64 m_longest = 0;
};

/// The same with the main window alive: what the yield of each row costs, and how long the window is deaf.
void eventsOfEachRow(benchmark::State& state)
{
    const Shop shop;
    ApplicationValues values;
    test::RecordingBoxes boxes;
    shell::FrmMain main(values, boxes, {});
    main.show();
    Rates rates;
    double yields = 0;
    double total = 0;
    double longestWait = 0;
    while (state.KeepRunning()) {
        const LongestWait wait;
        const double seconds = bench::secondsOf([&] {
            shell::LongWork work(main);
            const auto everyRow = [&] {
                yields += bench::secondsOf([&work] { work.letEventsRun(); });
            };
            convertAll(shop.ours(), rates.next(), {[] {}, everyRow});
        });
        longestWait = std::max(longestWait, wait.milliseconds());
        total += seconds;
        state.SetIterationTime(seconds);
    }
    const auto rows = static_cast<double>(state.iterations()) * pluCount;
    state.counters["row_us"] = (total - yields) / rows * 1e6;
    state.counters["yield_us"] = yields / rows * 1e6;
    state.counters["longest_wait_ms"] = longestWait;
}

} // namespace

BENCHMARK(euroConversion)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(eventsOfEachRow)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
