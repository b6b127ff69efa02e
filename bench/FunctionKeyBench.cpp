// Opening the editor of the function keys on a whole register, and going from key to key in it.
#include "bench/Ratio.h"
#include "keys/functions/FrmFunctKey.h"
#include "keys/RecordPicker.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/CommitOnExit.h"
#include "ui/Appearance.h"
#include "ui/MessageBoxes.h"

#include <QApplication>
#include <QComboBox>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>

namespace
{

using namespace norvane;
using bench::require;

constexpr int keyCount = 266;
constexpr long changes = 4L * keyCount; ///< every key four times

class Shop
{
public:
    Shop()
    {
        values.customerPath = m_folder.path();
        const QString path = m_folder.filePath(QStringLiteral("velmar.mdb"));
        store::Database::create(path, store::catalogue());
        store::Database database(path);
        const store::CommitOnExit transaction(database);
        for (int id = 1; id <= keyCount; ++id) {
            database.execute(
                QStringLiteral("insert into FUNCTIONKEY values (%1, 'KEY %1', 1250, 77, 77, 77, 77)")
                    .arg(id));
        }
    }

private:
    QTemporaryDir m_folder;

public:
    ApplicationValues values;
};

std::unique_ptr<keys::FrmFunctKey> openForm(Shop& shop, Boxes& boxes)
{
    auto form = std::make_unique<keys::FrmFunctKey>(shop.values, boxes);
    form->show();
    QApplication::processEvents();
    require(form->isVisible(), "the form shows");
    return form;
}

void openFunctionKeys(benchmark::State& state)
{
    Shop shop;
    ui::MessageBoxes boxes;
    bench::Cost cost;
    for (auto _ : state) {
        std::unique_ptr<keys::FrmFunctKey> form;
        cost.add([&] { form = openForm(shop, boxes); });
        require(form->findChild<QComboBox*>()->count() == keyCount, "all keys are listed");
    }
    state.counters["processor_ms"] = cost.processor / static_cast<double>(state.iterations()) * 1e3;
}

/// From the first key to the last and again; every kind of key is shown.
void changeKey(benchmark::State& state)
{
    Shop shop;
    ui::MessageBoxes boxes;
    const auto form = openForm(shop, boxes);
    auto* const list = form->findChild<keys::RecordPicker*>();
    bench::Cost cost;
    double worst = 0;
    int row = 0;
    for (auto _ : state) {
        const double before = cost.processor;
        cost.add([&] {
            list->setCurrentIndex(row);
            Q_EMIT list->activated(row);
            QApplication::processEvents(); // paints the key
        });
        worst = std::max(worst, cost.processor - before);
        row = (row + 1) % keyCount;
    }
    state.counters["processor_ms"] = cost.processor / static_cast<double>(state.iterations()) * 1e3;
    state.counters["worst_ms"] = worst * 1e3;
}

} // namespace

BENCHMARK(openFunctionKeys)->Unit(benchmark::kMillisecond)->Iterations(40);
BENCHMARK(changeKey)->Unit(benchmark::kMillisecond)->Iterations(changes);

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    ui::applyAppearance(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
