// The table of 100,000 PLUs: opening it, a keystroke in its filter, a sort, and a field set in all of them
// beside a bare loop that updates the same rows in one transaction.
#include "bench/Memory.h"
#include "bench/Shop.h"
#include "bench/WidgetMain.h"
#include "screens/table/FieldChange.h"
#include "screens/table/TableModel.h"
#include "screens/table/TableStore.h"
#include "screens/table/TableWindow.h"
#include "store/engine/WorkHistory.h"
#include "ui/MessageBoxes.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

#include <numeric>

namespace
{

using namespace norvane;
using bench::require;

constexpr int pluCount = 100000;
constexpr int sortedColumns = 6;

QString labelOf(const QString& field)
{
    return field;
}

class Shop : public bench::Shop
{
public:
    Shop()
        : bench::Shop("insert into PLUDATA (PLUNUMBER, DESCRIPTION, GROUPNO, PRICE1) " +
                      bench::numbersTo(pluCount) +
                      "select printf('%018d', i * 37), 'Article ' || (i % 977), i % 20, printf('%.2f', i % "
                      "5000 / 100.0) from n;insert into GROUPS (GROUPNO, DESCRIPTION) " +
                      bench::numbersTo(20) + "select i, 'Group ' || i from n")
    {
    }

    [[nodiscard]] std::unique_ptr<screens::TableWindow> open()
    {
        auto window = std::make_unique<screens::TableWindow>(
            screens::TableOrder{screenFile, database(), QStringLiteral("PLUs"), labelOf}, values, m_boxes,
            screens::ColumnMemory(file("tables.ini")));
        window->show();
        QApplication::processEvents();
        return window;
    }

    const QString screenFile = QStringLiteral(DATA_DIR "/PLUVelmarv3.scn");

private:
    ui::MessageBoxes m_boxes;
};

void openTable(benchmark::State& state)
{
    Shop shop;
    while (state.KeepRunning()) {
        const auto window = shop.open();
        require(window->findChild<QTableView*>()->model()->rowCount() == pluCount, "all PLUs");
    }
}

void filterKey(benchmark::State& state)
{
    Shop shop;
    const auto before = bench::statusBytes("VmRSS:");
    const auto window = shop.open();
    auto* const box = window->findChild<QLineEdit*>(QStringLiteral("TableFilter"));
    const auto* const rows = window->findChild<QTableView*>()->model();
    QTest::qWait(3000); // the texts are prepared while the user does nothing
    bench::Times times;
    for (auto _ : state) {
        if (box->text().size() > 5)
            box->clear();
        times.add([&] {
            QTest::keyClick(box, "le 123"[box->text().size()]);
            QApplication::processEvents();
        });
    }
    require(rows->rowCount() > 0 && rows->rowCount() <= pluCount, "the table is filtered");
    times.report(state);
    state.counters["megabytes"] = static_cast<double>(bench::statusBytes("VmRSS:") - before) / 1e6;
}

void sortColumn(benchmark::State& state)
{
    Shop shop;
    const auto window = shop.open();
    auto* const header = window->findChild<QTableView*>()->horizontalHeader();
    bench::Times times;
    int column = 0;
    for (auto _ : state) {
        times.add([&] {
            header->setSortIndicator(column++ % sortedColumns, Qt::DescendingOrder);
            QApplication::processEvents();
        });
    }
    times.report(state);
}

/// Somebody else stores a record while a filter is set.
void refreshFiltered(benchmark::State& state)
{
    Shop shop;
    const auto window = shop.open();
    QTest::keyClicks(window->findChild<QLineEdit*>(QStringLiteral("TableFilter")), QStringLiteral("le 123"));
    const auto* const rows = window->findChild<QTableView*>()->model();
    const int before = rows->rowCount();
    bench::Times times;
    int number = 0;
    for (auto _ : state) {
        bench::BareDatabase(shop.database())
            .run(QStringLiteral("update PLUDATA set DESCRIPTION = 'Article 123' where _rowid_ = %1")
                     .arg(++number)
                     .toUtf8());
        times.add([&] {
            window->refresh();
            QApplication::processEvents();
        });
    }
    require(rows->rowCount() == before + number, "the changed records are found");
    times.report(state);
}

/// Adds 20 cents to every price and stores them. @param history nullptr to keep nothing for an undo
void raiseAll(const Shop& shop, store::WorkHistory* history)
{
    const QString path = shop.database();
    const auto database = std::make_shared<store::Database>(path);
    screens::TableModel table(
        database,
        screens::tableSource(*database, screens::ScreenReader(shop.screenFile), shop.values, labelOf));
    const auto& columns = table.rows().columns();
    const auto price = std::find_if(columns.begin(), columns.end(), [](const screens::TableColumn& column) {
        return column.field.name == QLatin1StringView("PRICE1");
    });
    std::vector<int> rows(pluCount);
    std::iota(rows.begin(), rows.end(), 0);
    const screens::FieldChange change{screens::ChangeKind::Amount,
                                      static_cast<int>(price - columns.begin()),
                                      QStringLiteral("0.20"),
                                      0,
                                      {}};
    auto plan = screens::planChange(table, change, rows);
    require(plan.edits.size() == pluCount, "all prices change");
    table.changeEdits([&](screens::PendingEdits& edits) { edits.add(std::move(plan.edits)); });
    const store::RecordedWork recorded(history, *database, path, {table.rows().source().table});
    storeEdits(*database, table.rows().source(), table.edits().all());
}

void bareRaiseAll(const QString& path)
{
    const bench::BareDatabase database(path);
    database.run("begin");
    sqlite3_stmt* select = database.prepare("select _rowid_, PRICE1 from PLUDATA order by PLUNUMBER");
    sqlite3_stmt* update = database.prepare("update PLUDATA set PRICE1 = ? where _rowid_ = ?");
    while (sqlite3_step(select) == SQLITE_ROW) {
        std::array<char, 32> text{};
        std::snprintf(text.data(), text.size(), "%.2f", sqlite3_column_double(select, 1) + 0.2);
        bench::bindText(update, 1, text.data());
        sqlite3_bind_int64(update, 2, sqlite3_column_int64(select, 0));
        bench::runOnce(update);
    }
    sqlite3_finalize(update);
    sqlite3_finalize(select);
    database.run("commit");
}

void setField(benchmark::State& state)
{
    const Shop shop;
    const Shop bare;
    bench::compare(
        state, [&] { raiseAll(shop, nullptr); }, [&] { bareRaiseAll(bare.database()); });
}

/// With what undoing it needs.
void setFieldToUndo(benchmark::State& state)
{
    const Shop shop;
    const Shop bare;
    bench::compare(
        state,
        [&] {
            store::WorkHistory history;
            raiseAll(shop, &history);
            require(history.latest(shop.database())->changes.count() == pluCount, "all can be undone");
        },
        [&] { bareRaiseAll(bare.database()); });
}

/// Undoes that, as Ctrl+Z does: first it counts what somebody else has changed meanwhile. Beside a bare loop
/// that sets the field again.
void undoField(benchmark::State& state)
{
    const Shop shop;
    const Shop bare;
    double ours = 0;
    double bareSeconds = 0;
    while (state.KeepRunning()) {
        store::WorkHistory history;
        raiseAll(shop, &history);
        const store::RowChanges& changes = history.latest(shop.database())->changes;
        state.counters["megabytes"] = static_cast<double>(changes.size()) / 1e6;
        const double undo = bench::processorSecondsOf([&] {
            store::Database database(shop.database());
            require(changes.changedSince(database) == 0, "nobody else has changed a row");
            require(changes.takeBack(database) == pluCount, "all rows are as before");
        });
        bareSeconds += bench::processorSecondsOf([&] { bareRaiseAll(bare.database()); });
        ours += undo;
        state.SetIterationTime(undo);
    }
    state.counters["ratio"] = ours / bareSeconds;
}

} // namespace

BENCHMARK(openTable)->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK(filterKey)->Unit(benchmark::kMillisecond)->Iterations(60);
BENCHMARK(sortColumn)->Unit(benchmark::kMillisecond)->Iterations(12);
BENCHMARK(refreshFiltered)->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK(setField)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(4);
BENCHMARK(setFieldToUndo)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(4);
BENCHMARK(undoField)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(4);

int main(int argc, char** argv)
{
    return norvane::bench::runWithWidgets(argc, argv);
}
