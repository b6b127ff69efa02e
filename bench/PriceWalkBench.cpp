// Converts all prices to euro, beside a bare walk: a select in the order of the PLU numbers and a prepared
// update, in one transaction. What keeps the window alive is measured separately.
#include "bench/Shop.h"
#include "bench/WidgetMain.h"
#include "shell/FrmMain.h"
#include "shell/LongWork.h"
#include "tests/support/RecordingBoxes.h"
#include "utilities/PriceUtilities.h"

#include <benchmark/benchmark.h>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using bench::BareDatabase;
using bench::require;

constexpr int pluCount = 100000;
constexpr int prices = 5;

void addPlu(sqlite3_stmt* insert, int plu)
{
    sqlite3_bind_int(insert, 1, plu);
    for (int price = 1; price <= prices; ++price) {
        const int cents = (plu * 31 + price * 17) % 100000;
        std::array<char, 16> text{};
        std::snprintf(text.data(), text.size(), "%d.%02d", cents / 100, cents % 100);
        bench::bindText(insert, price + 1, text.data());
    }
    bench::runOnce(insert);
}

void fillWithPlus(const QString& path)
{
    const BareDatabase database(path);
    database.run("begin");
    sqlite3_stmt* insert = database.prepare(
        "insert into PLUDATA (PLUNUMBER, DESCRIPTION, PRICE1, PRICE2, PRICE3, "
        "PRICE4, PRICE5) values (printf('%018d', ?1), 'Article ' || ?1, ?2, ?3, ?4, ?5, ?6)");
    for (int plu = 1; plu <= pluCount; ++plu)
        addPlu(insert, plu);
    sqlite3_finalize(insert);
    database.run("commit");
}

/// Two databases with the same PLUs: ours, and one for the bare walk.
class Shop : public bench::TwinShop
{
public:
    Shop()
    {
        for (const QString& path : {database(), bareDatabase()})
            fillWithPlus(path);
    }

    /// All euro prices of a database added up.
    [[nodiscard]] static double sum(const QString& path)
    {
        return BareDatabase(path).number(
            "select sum(EuroPrice1 + europrice2 + europrice3 + europrice4 + europrice5) from PLUDATA");
    }
    /// The bare walk rounds differently, so a price may differ by a cent.
    void checkSums() const
    {
        const double total = sum(database());
        require(total > 0 && std::abs(total / sum(bareDatabase()) - 1) < 1e-5, "all prices converted");
    }
};

const utilities::PriceUtility& conversion()
{
    const auto all = utilities::priceUtilities();
    return *std::find_if(all.begin(), all.end(), [](const utilities::PriceUtility& utility) {
        return utility.handler == "TransferEuro_Click"_L1;
    });
}

/// A new rate for each walk; the same rate again would change nothing.
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
    ApplicationValues values;
    values.customerPath = QFileInfo(path).path();
    values.appPath = values.customerPath + u"/app"_s;
    QDir().mkpath(values.appPath);
    values.databasePath = path;
    utilities::runPriceUtility(conversion(), values, boxes, frame);
    require(boxes.shown.size() == 3, "the question, the rate and the end");
}

/// Converts the PLU of the row that @p select is at.
void bareConvert(sqlite3_stmt* select, sqlite3_stmt* update, double rate)
{
    for (int price = 1; price <= prices; ++price) {
        std::array<char, 32> text{};
        std::snprintf(text.data(), text.size(), " %.2f", sqlite3_column_double(select, price) / rate);
        bench::bindText(update, price, text.data());
    }
    sqlite3_bind_int64(update, prices + 1, sqlite3_column_int64(select, 0));
    bench::runOnce(update);
}

void bareConvertAll(const QString& path, double rate)
{
    const BareDatabase database(path);
    database.run("begin");
    sqlite3_stmt* select = database.prepare(
        "select _rowid_, PRICE1, PRICE2, PRICE3, PRICE4, PRICE5 from PLUDATA order by PLUNUMBER");
    sqlite3_stmt* update = database.prepare("update PLUDATA set EuroPrice1=?, europrice2=?, europrice3=?, "
                                            "europrice4=?, europrice5=? where _rowid_=?");
    while (sqlite3_step(select) == SQLITE_ROW)
        bareConvert(select, update, rate);
    sqlite3_finalize(update);
    sqlite3_finalize(select);
    database.run("commit");
}

void nothing() {}
void noNotice(const QString& /*text*/) {}

void euroConversion(benchmark::State& state)
{
    const Shop shop;
    Rates rates;
    double rate = 0;
    // The bare walk is first and takes a new rate for both.
    const auto ours = [&] {
        convertAll(shop.database(), rate, {nothing, nothing, noNotice});
    };
    const auto bare = [&] {
        rate = rates.next();
        bareConvertAll(shop.bareDatabase(), rate);
    };
    bench::compare(state, ours, bare);
    shop.checkSums();
}

/// Undoes the conversion of all PLUs, beside the bare walk, which stores as many.
void undoConversion(benchmark::State& state)
{
    const Shop shop;
    Rates rates;
    store::WorkHistory history;
    double ours = 0;
    double bare = 0;
    while (state.KeepRunning()) {
        const double rate = rates.next();
        convertAll(shop.database(), rate, {nothing, nothing, noNotice, &history});
        const store::RowChanges& changes = history.latest(shop.database())->changes;
        state.counters["megabytes"] = static_cast<double>(changes.size()) / 1e6;
        const double undo = bench::processorSecondsOf([&] {
            store::Database database(shop.database());
            require(changes.takeBack(database) == pluCount, "all PLUs are as before");
        });
        history.removeLatest(shop.database());
        bare += bench::processorSecondsOf([&] { bareConvertAll(shop.bareDatabase(), rate); });
        ours += undo;
        state.SetIterationTime(undo);
    }
    state.counters["ratio"] = ours / bare;
}

/// How long a user's click waits at most: the longest time between two turns of the event loop.
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
    /// Includes the time since the last turn.
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

/// Seconds of a walk and of its calls that let events run, and the longest wait of the window.
struct WalkTimes {
    double walk = 0;
    double yields = 0;
    double longestWait = 0; ///< milliseconds
};

WalkTimes walkWithWindow(shell::FrmMain& main, const QString& path, double rate)
{
    WalkTimes times;
    const LongestWait wait;
    times.walk = bench::secondsOf([&] {
        shell::LongWork work(main);
        const auto everyRow = [&] {
            times.yields += bench::secondsOf([&work] { work.letEventsRun(); });
        };
        convertAll(path, rate, {nothing, everyRow, noNotice});
    });
    times.longestWait = wait.milliseconds();
    return times;
}

/// The same with a living main window: what letting events run costs for each row, and how long the window
/// does not answer.
void eventsOfEachRow(benchmark::State& state)
{
    const Shop shop;
    const ApplicationValues values;
    test::RecordingBoxes boxes;
    shell::FrmMain main(values, boxes, {});
    main.show();
    Rates rates;
    WalkTimes all;
    while (state.KeepRunning()) {
        const WalkTimes times = walkWithWindow(main, shop.database(), rates.next());
        all = {all.walk + times.walk, all.yields + times.yields,
               std::max(all.longestWait, times.longestWait)};
        state.SetIterationTime(times.walk);
    }
    const auto rows = static_cast<double>(state.iterations()) * pluCount;
    state.counters["row_us"] = (all.walk - all.yields) / rows * 1e6;
    state.counters["yield_us"] = all.yields / rows * 1e6;
    state.counters["longest_wait_ms"] = all.longestWait;
}

} // namespace

BENCHMARK(euroConversion)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(undoConversion)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(eventsOfEachRow)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    return norvane::bench::runWithWidgets(argc, argv);
}
