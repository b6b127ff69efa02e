// Select All up and Select All down on a full register, with the real tools: how much of the time is the
// program's own, which register files take it, and the share of the safety copy that is made first.
#include "bench/Ratio.h"
#include "customers/SafetyCopies.h"
#include "exchange/ExchangeRunner.h"
#include "link/ToolRun.h"
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
    /// Removes a file from the register, so that only a send can restore it.
    void emptyRegister() { require(QFile::remove(pluFile()), "the register's PLUs go"); }
    void checkRegister()
    {
        const qint64 leastRecord = 64;
        require(QFileInfo(pluFile()).size() > m_plus * leastRecord, "the register got its PLUs");
    }

private:
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
void selectAll(benchmark::State& state, Shop& shop, bool (exchange::ExchangeRunner::*sequence)(),
               Before before, After after)
{
    double tools = 0;
    double own = 0;
    double copy = 0;
    Meter last;
    for (auto _ : state) {
        before();
        copy += bench::secondsOf([&] { shop.copy(); });
        last = shop.run(sequence);
        after();
        state.SetIterationTime(last.own());
        own += last.own();
        tools += last.tools();
    }
    state.counters["tools_ms"] = tools * 1000 / static_cast<double>(state.iterations());
    state.counters["copy_ms"] = copy * 1000 / static_cast<double>(state.iterations());
    state.counters["copy_share"] = copy / (own + tools);
    printSplit(last);
}

void selectAllUp(benchmark::State& state)
{
    Shop shop(static_cast<int>(state.range()));
    // What is copied is the full programme, as before any upload but the first.
    shop.run(&exchange::ExchangeRunner::UploadData);
    selectAll(
        state, shop, &exchange::ExchangeRunner::UploadData, [] {}, [&] { shop.checkTable(); });
}

void selectAllDown(benchmark::State& state)
{
    Shop shop(static_cast<int>(state.range()));
    shop.run(&exchange::ExchangeRunner::UploadData);
    selectAll(
        state, shop, &exchange::ExchangeRunner::downloaddata, [&] { shop.emptyRegister(); },
        [&] { shop.checkRegister(); });
}

} // namespace

BENCHMARK(selectAllUp)
    ->Arg(10000)
    ->Arg(mostPlus)
    ->UseManualTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(selectAllDown)->Arg(10000)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
