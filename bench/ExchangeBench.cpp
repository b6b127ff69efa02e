// Select All up and Select All down on a full register, with the real tools: how much of the time is the
// program's own, which register files take it, the shares of the safety copy that is made first and of the
// ledger.
#include "bench/Ratio.h"
#include "customers/SafetyCopies.h"
#include "exchange/ExchangeRunner.h"
#include "exchange/UnsentChanges.h"
#include "link/ToolRun.h"
#include "platform/SilentBoxes.h"
#include "records/RegisterFiles.h"
#include "records/RegisterLines.h"
#include "records/TextImport.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"
#include "tests/support/ProgramFolder.h"
#include "tests/support/RecordingBoxes.h"

#include <benchmark/benchmark.h>
#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cstdio>
#include <map>
#include <string>
#include <sys/resource.h>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using bench::require;
using Seconds = std::chrono::duration<double>;

constexpr int dorvik = 3;
constexpr int mostPlus = 99999; ///< the largest capacity in a register's memory file

/// Measures the tools and the program's own steps apart.
class Meter
{
public:
    void step(const QString& name)
    {
        bookOwn();
        m_step = name;
    }
    ChildResult tool(const ApplicationValues& values, const QString& commandLine)
    {
        bookOwn();
        auto result = ChildResult::NotFound;
        m_tools += bench::secondsOf([&] { result = link::RunAndWait(values, commandLine); });
        m_since = std::chrono::steady_clock::now();
        return result;
    }
    void bookOwn()
    {
        const auto now = std::chrono::steady_clock::now();
        m_steps[m_step] += Seconds(now - m_since).count();
        m_since = now;
    }

    [[nodiscard]] double tools() const { return m_tools; }
    [[nodiscard]] double own() const
    {
        double sum = 0;
        for (const auto& step : m_steps)
            sum += step.second;
        return sum;
    }
    [[nodiscard]] const std::map<QString, double>& steps() const { return m_steps; }

private:
    std::map<QString, double> m_steps;
    QString m_step = u"Start"_s;
    double m_tools = 0;
    std::chrono::steady_clock::time_point m_since = std::chrono::steady_clock::now();
};

class AllBoxes : public exchange::TickBoxes
{
public:
    AllBoxes() { m_ticked.fill(true); }
    [[nodiscard]] bool isTicked(int box) const override { return m_ticked.at(static_cast<std::size_t>(box)); }
    void setTicked(int box, bool ticked) override { m_ticked.at(static_cast<std::size_t>(box)) = ticked; }
    [[nodiscard]] bool allDone() const
    {
        return std::none_of(m_ticked.begin(), m_ticked.end(), [](bool ticked) { return ticked; });
    }

private:
    std::array<bool, exchange::boxCount> m_ticked{};
};

/// A customer with one register, and all boxes to move.
class Shop
{
public:
    explicit Shop(int plus)
        : m_plus(plus), m_folder(dorvik, 1, plus), m_values(m_folder.makeCustomer(u"Shop"_s))
    {
    }

    Meter run(bool (exchange::ExchangeRunner::*sequence)())
    {
        const link::LinkSettings link = link::readLinkSettings(m_values);
        AllBoxes boxes;
        Meter meter;
        exchange::ExchangeRunner runner(m_values, link, boxes, outside(meter));
        (runner.*sequence)();
        meter.bookOwn();
        require(boxes.allDone() && m_boxes.shown.empty(), "all boxes moved without a word");
        return meter;
    }

    void checkTable()
    {
        store::Database database(m_values.databasePath);
        require(database.openTable(u"PLUDATA"_s).recordCount() == m_plus, "all PLUs came");
    }
    /// The copy that an upload begins with, alone.
    void copy() { require(customers::copyBeforeJob(m_values, m_boxes, u"bench"_s), "copied"); }
    /// What an exchange does for the ledger, alone.
    bench::Cost ledgerCost(exchange::Direction direction)
    {
        return direction == exchange::Direction::Upload ? costOfFetch() : costOfSend();
    }
    /// One PLU of all has another price.
    void changeOnePrice()
    {
        store::Database(m_values.databasePath)
            .execute(u"update PLUDATA set PRICE1='77.77' where PLUNUMBER = "
                     u"(select max(PLUNUMBER) from PLUDATA)"_s);
    }
    [[nodiscard]] exchange::AllChanges changes() const { return exchange::unsentChanges(m_values); }
    /// Removes a file from the register, so that only a send can restore it.
    void emptyRegister() { require(QFile::remove(pluFile()), "the register's PLUs go"); }
    void checkRegister()
    {
        const qint64 leastRecord = 64;
        require(QFileInfo(pluFile()).size() > m_plus * leastRecord, "the register got its PLUs");
    }

private:
    using Lines = std::map<int, std::vector<std::string>>;

    bench::Cost costOfSend()
    {
        const auto lines = allLines();
        exchange::LedgerRun ledger(m_values);
        bench::Cost cost;
        cost.add([&] {
            ledger.begin(exchange::Direction::Download, {}, 1);
            for (const auto& row : exchange::downloadPlan()) {
                ledger.beginFile(row.file);
                send(ledger, lines, row.file);
            }
            ledger.end();
        });
        return cost;
    }
    /// The import passes the records on while it has them, so that walking over them is not the ledger's
    /// work.
    bench::Cost costOfFetch()
    {
        store::Database database(m_values.databasePath);
        const auto walk = [&](int file, const auto& take) {
            auto records = database.openTable(QLatin1String(records::registerFile(file)->table));
            for (; !records.atEnd(); records.moveNext())
                take(records);
        };
        exchange::LedgerRun ledger(m_values);
        bench::Cost cost;
        bench::Cost walks;
        cost.add([&] { ledger.begin(exchange::Direction::Upload, {}, 1); });
        for (const auto& row : exchange::uploadPlan()) {
            cost.add([&] { ledger.beginFile(row.file); });
            if (row.file == exchange::pluFile || row.file == exchange::pluPointsFile) {
                walks.add([&] { walk(row.file, [](const auto&) {}); });
                cost.add([&] { walk(row.file, [&](const auto& record) { ledger.addRecord(record); }); });
            }
            cost.add([&] { ledger.fetched(); });
        }
        cost.add([&] { ledger.end(); });
        return {cost.elapsed - walks.elapsed, cost.processor - walks.processor};
    }

    /// The lines of every file, made from its table.
    Lines allLines()
    {
        SilentBoxes boxes;
        store::Database database(m_values.databasePath);
        const records::ProcedureContext context{m_values, boxes, {}};
        Lines all;
        for (const auto& file : records::registerFiles()) {
            if (file.exporter == nullptr || database.openTable(QLatin1String(file.table)).recordCount() == 0)
                continue;
            records::forEachLine(
                file, database, records::traitsOf(context),
                [&](std::string_view line, const auto&) { all[file.number].emplace_back(line); });
        }
        return all;
    }
    static void send(exchange::LedgerRun& ledger, const Lines& lines, int file)
    {
        if (const auto found = lines.find(file); found != lines.end()) {
            for (const std::string& line : found->second)
                ledger.addLine(line);
        }
        ledger.sending();
        ledger.sent();
    }
    link::RunOutside outside(Meter& meter)
    {
        return {.runAndWait = [&](const QString& line) { return meter.tool(m_values, line); },
                .readStatus = link::ReadStatusOut,
                .showStep = [&](const QString& text) { meter.step(text); },
                .showNotice = [](const QString& text) { require(false, qPrintable(text)); },
                .goOn = [] { return true; },
                .boxes = m_boxes};
    }
    [[nodiscard]] QString pluFile() const { return m_folder.registerFile(1, 67); }

    int m_plus;
    test::ProgramFolder m_folder;
    ApplicationValues m_values;
    test::RecordingBoxes m_boxes;
};

/// Of all child processes that have ended.
double processorSecondsOfTools()
{
    rusage used{};
    getrusage(RUSAGE_CHILDREN, &used);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(used.ru_utime) + seconds(used.ru_stime);
}

void printSplit(const Meter& meter)
{
    std::vector<std::pair<double, QString>> steps;
    for (const auto& [name, seconds] : meter.steps())
        steps.emplace_back(seconds, name);
    std::sort(steps.rbegin(), steps.rend());
    for (const auto& [seconds, name] : steps)
        std::printf("%9.2f ms  %s\n", seconds * 1000, qPrintable(name));
}

/// The time of an iteration is the program's own; the counter holds that of the tools with their starts.
template <typename Before, typename After>
void selectAll(benchmark::State& state, Shop& shop, exchange::Direction direction, Before before, After after)
{
    const auto sequence = direction == exchange::Direction::Upload ? &exchange::ExchangeRunner::UploadData
                                                                   : &exchange::ExchangeRunner::downloaddata;
    bench::Cost ledger;
    bench::Cost exchange;
    double tools = 0;
    double own = 0;
    double copy = 0;
    Meter last;
    for (auto _ : state) {
        before();
        copy += bench::secondsOf([&] { shop.copy(); });
        const double toolsBefore = processorSecondsOfTools();
        exchange.add([&] { last = shop.run(sequence); });
        exchange.processor += processorSecondsOfTools() - toolsBefore;
        after();
        const bench::Cost once = shop.ledgerCost(direction);
        ledger = {ledger.elapsed + once.elapsed, ledger.processor + once.processor};
        state.SetIterationTime(last.own());
        own += last.own();
        tools += last.tools();
    }
    state.counters["tools_ms"] = tools * 1000 / static_cast<double>(state.iterations());
    state.counters["copy_ms"] = copy * 1000 / static_cast<double>(state.iterations());
    state.counters["copy_share"] = copy / (own + tools);
    state.counters["ledger_ms"] = ledger.processor * 1000 / static_cast<double>(state.iterations());
    state.counters["ledger_share"] = ledger.processor / exchange.processor;
    state.counters["ledger_clock_share"] = ledger.elapsed / exchange.elapsed;
    printSplit(last);
}

void selectAllUp(benchmark::State& state)
{
    Shop shop(static_cast<int>(state.range()));
    // What is copied is the full programme, as before any upload but the first.
    shop.run(&exchange::ExchangeRunner::UploadData);
    selectAll(
        state, shop, exchange::Direction::Upload, [] {}, [&] { shop.checkTable(); });
}

void selectAllDown(benchmark::State& state)
{
    Shop shop(static_cast<int>(state.range()));
    shop.run(&exchange::ExchangeRunner::UploadData);
    selectAll(
        state, shop, exchange::Direction::Download, [&] { shop.emptyRegister(); },
        [&] { shop.checkRegister(); });
}

/// The dots of the exchange dialog.
void lookForChanges(benchmark::State& state)
{
    Shop shop(static_cast<int>(state.range()));
    shop.run(&exchange::ExchangeRunner::UploadData);
    shop.changeOnePrice();
    for (auto _ : state)
        require(shop.changes().at(exchange::pluBox).records == 1, "one record is not sent");
}

} // namespace

BENCHMARK(lookForChanges)->Arg(10000)->Arg(mostPlus)->Unit(benchmark::kMillisecond);
BENCHMARK(selectAllUp)
    ->Arg(10000)
    ->Arg(mostPlus)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(selectAllDown)
    ->Arg(10000)
    ->Arg(mostPlus)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
