// Opening the editor of the function keys on a whole register, and going from key to key in it.
#include "bench/Shop.h"
#include "bench/WidgetMain.h"
#include "keys/functions/FrmFunctKey.h"
#include "keys/RecordPicker.h"
#include "ui/MessageBoxes.h"

#include <QApplication>
#include <QComboBox>

#include <memory>

namespace
{

using namespace norvane;
using bench::require;

constexpr int keyCount = 266;
constexpr long changes = 4L * keyCount; ///< every key four times

bench::Shop& shop()
{
    static bench::Shop shop("insert into FUNCTIONKEY " + bench::numbersTo(keyCount) +
                            "select i, 'KEY ' || i, 1250, 77, 77, 77, 77 from n");
    return shop;
}

std::unique_ptr<keys::FrmFunctKey> openForm(Boxes& boxes)
{
    auto form = std::make_unique<keys::FrmFunctKey>(shop().values, boxes);
    form->show();
    QApplication::processEvents();
    require(form->isVisible(), "the form shows");
    return form;
}

void openFunctionKeys(benchmark::State& state)
{
    ui::MessageBoxes boxes;
    bench::Times times;
    for (auto _ : state) {
        std::unique_ptr<keys::FrmFunctKey> form;
        times.add([&] { form = openForm(boxes); });
        require(form->findChild<QComboBox*>()->count() == keyCount, "all keys are listed");
    }
    times.report(state);
}

/// From the first key to the last and again; every kind of key is shown.
void changeKey(benchmark::State& state)
{
    ui::MessageBoxes boxes;
    const auto form = openForm(boxes);
    auto* const list = form->findChild<keys::RecordPicker*>();
    bench::Times times;
    int row = 0;
    for (auto _ : state) {
        times.add([&] {
            list->setCurrentIndex(row);
            Q_EMIT list->activated(row);
            QApplication::processEvents(); // paints the key
        });
        row = (row + 1) % keyCount;
    }
    times.report(state);
}

} // namespace

BENCHMARK(openFunctionKeys)->Unit(benchmark::kMillisecond)->Iterations(40);
BENCHMARK(changeKey)->Unit(benchmark::kMillisecond)->Iterations(changes);

int main(int argc, char** argv)
{
    return norvane::bench::runWithWidgets(argc, argv);
}
