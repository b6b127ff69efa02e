// The designer of keyboard overlays: opening the largest keyboard, and importing a level of a shop with
// 100,000 PLUs.
#include "bench/Shop.h"
#include "bench/WidgetMain.h"
#include "overlay/LevelImport.h"
#include "overlay/OverlayForm.h"
#include "overlay/SystemDialogs.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Recordset.h"
#include "tests/support/RecordingBoxes.h"

#include <QApplication>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using namespace norvane::overlay;
using bench::require;
using store::Value;

constexpr int pluCount = 100000;
constexpr int keyCount = 845;

/// Every key sells another PLU.
void fillShop(store::Database& database)
{
    const store::CommitOnExit transaction(database);
    store::Recordset plus = database.openTable(u"PLUDATA"_s);
    for (int number = 1; number <= pluCount; ++number) {
        plus.addNew();
        plus.setValue(u"PLUNUMBER"_s, Value::text(bench::pluNumber(number * 37LL)));
        plus.setValue(u"DESCRIPTION"_s, Value::text(u"Article %1"_s.arg(number)));
        plus.update();
    }
    store::Recordset links = database.openTable(u"KEYLINK"_s);
    store::Recordset lookUps = database.openTable(u"NLU"_s);
    for (int key = 1; key <= keyCount; ++key) {
        links.addNew();
        links.setValue(u"ID"_s, Value::whole(key));
        links.setValue(u"KEYLINK"_s, Value::text(u"0"_s));
        links.update();
        lookUps.addNew();
        lookUps.setValue(u"ID"_s, Value::whole(key));
        lookUps.setValue(u"NLU"_s, Value::text(bench::pluNumber(key * 3700LL)));
        lookUps.update();
    }
}

/// From the opening of the database to the last key.
void importLevel(benchmark::State& state)
{
    const bench::Shop shop;
    {
        store::Database database(shop.database());
        fillShop(database);
    }
    Document document(Keyboard::Velmar);
    for (auto _ : state)
        importdata(document, 5, shop.database());
    require(document.cell(36).text == u"Article"_s, "the keys have their texts");
}

/// From the creation of the form to its first paint.
void openDesigner(benchmark::State& state)
{
    const ApplicationValues values;
    test::RecordingBoxes boxes;
    SystemDialogs dialogs;
    PrinterInUse printer;
    for (auto _ : state) {
        OverlayForm form(Keyboard::Velmar, values, boxes, dialogs, printer);
        form.show();
        QApplication::processEvents();
        benchmark::DoNotOptimize(form.grab());
    }
}

} // namespace

BENCHMARK(importLevel)->Unit(benchmark::kMillisecond);
BENCHMARK(openDesigner)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    return norvane::bench::runWithWidgets(argc, argv);
}
