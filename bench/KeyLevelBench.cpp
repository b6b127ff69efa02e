// Whole levels over 100,000 PLUs and full keyboards: comparison of two, search over all.
#include "bench/KeyboardShop.h"
#include "keys/layout/CompareLevels.h"
#include "keys/layout/LevelSearch.h"
#include "ui/MessageBoxes.h"

#include <QApplication>

#include <memory>

namespace
{

using namespace norvane;

/// The first level of full keyboards.
struct ReadLevel {
    ReadLevel() { level.read(1); }

    bench::KeyboardShop shop = {};
    std::shared_ptr<store::Database> database = std::make_shared<store::Database>(shop.database());
    keys::KeyLevel level{shop.keyboard, database};
};

/// Reads the second level and lists what it does otherwise.
void compareLevels(benchmark::State& state)
{
    const ReadLevel first;
    bench::Times times;
    for (auto _ : state) {
        std::size_t differences = 0;
        times.add([&] {
            keys::KeyLevel other(first.shop.keyboard, first.database);
            other.read(2);
            differences = keys::differencesOf(first.level, other).size();
        });
        bench::require(differences == static_cast<std::size_t>(first.shop.keyboard.keysPerLevel),
                       "all keys differ");
    }
    times.report(state);
}

/// The window with both keyboards and the list.
void openComparison(benchmark::State& state)
{
    const ReadLevel first;
    ui::MessageBoxes boxes;
    bench::Times times;
    for (auto _ : state) {
        times.add([&] {
            keys::CompareLevels window(first.level, first.database, boxes, nullptr);
            window.show();
            QApplication::processEvents();
        });
    }
    times.report(state);
}

/// All keys of five levels, or the PLUs that are on none of them.
template <keys::KeyFilter filter>
void searchLevels(benchmark::State& state)
{
    const ReadLevel first;
    bench::Times times;
    for (auto _ : state) {
        std::size_t hits = 0;
        times.add([&] {
            hits =
                keys::searchKeys(keys::keysOfAllLevels(first.level, first.database), filter, *first.database)
                    .size();
        });
        bench::require(hits >= 845, "keys or PLUs");
    }
    times.report(state);
}

} // namespace

BENCHMARK(compareLevels)->Unit(benchmark::kMillisecond)->Iterations(50);
BENCHMARK(openComparison)->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(searchLevels<keys::KeyFilter::Programmed>)->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(searchLevels<keys::KeyFilter::OnNoKey>)->Unit(benchmark::kMillisecond)->Iterations(20);
