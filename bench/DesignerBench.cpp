// The designer of keyboard overlays: opening the largest keyboard, and importing a level of a shop with
// 100,000 PLUs.
#include "bench/Ratio.h"
#include "overlay/LevelImport.h"
#include "overlay/OverlayForm.h"
#include "overlay/SystemDialogs.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Database.h"
#include "store/engine/Recordset.h"
#include "tests/support/RecordingBoxes.h"
#include "ui/Appearance.h"

#include <QApplication>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using namespace norvane::overlay;
using bench::require;
using store::Value;

constexpr int pluCount = 100000;
constexpr int keyCount = 845;

QString pluNumber(int number)
{
    return u"%1"_s.arg(number * 37LL, 18, 10, QChar(u'0'));
}

/// Every key sells another PLU.
void fillShop(store::Database& database)
{
    const store::CommitOnExit transaction(database);
    store::Recordset plus = database.openTable(u"PLUDATA"_s);
    for (int number = 1; number <= pluCount; ++number) {
        plus.addNew();
        plus.setValue(u"PLUNUMBER"_s, Value::text(pluNumber(number)));
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
        lookUps.setValue(u"NLU"_s, Value::text(pluNumber(key * 100)));
        lookUps.update();
    }
}

/// From the opening of the database to the last key.
void importLevel(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"velmar.mdb"_s);
    store::Database::create(path, store::catalogue());
    {
        store::Database database(path);
        fillShop(database);
    }
    Document document(Keyboard::Velmar);
    for (auto _ : state)
        importdata(document, 5, path);
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
    // Widgets alone are measured; a screen would only add its own time.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    ui::applyAppearance(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
