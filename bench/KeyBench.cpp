// The editors of keyboards and look-ups over 100,000 PLUs and full keyboards: their own time for what users
// wait for, and a save of a level beside a bare loop that updates the same rows.
#include "bench/KeyboardShop.h"
#include "bench/WidgetMain.h"
#include "keys/layout/KeyGrid.h"
#include "keys/layout/KeyLayout.h"
#include "keys/layout/KeyLevel.h"
#include "keys/lookups/frmwlu.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Recordset.h"
#include "ui/MessageBoxes.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>

#include <algorithm>
#include <memory>

namespace
{

using namespace norvane;
using bench::functionCount, bench::lookUpCount, bench::pluCount;
using bench::require;
using Shop = bench::KeyboardShop;

/// A laptop's screen without its bars.
constexpr QSize laptop{1354, 720};

class NoBoxes : public ui::MessageBoxes
{
public:
    std::optional<bool> askBeforeGoingOn(const QString& /*text*/, const QString& /*title*/) override
    {
        return false;
    }
};

template <typename Form, typename... Parts>
std::unique_ptr<Form> shown(Parts&&... parts)
{
    auto form = std::make_unique<Form>(std::forward<Parts>(parts)...);
    form->show();
    QApplication::processEvents();
    return form;
}

/// The editor of a full keyboard, on its first level.
struct OpenEditor {
    template <typename Control>
    [[nodiscard]] Control& control(QAnyStringView name) const
    {
        return *form->findChild<Control*>(name.toString());
    }
    [[nodiscard]] keys::KeyGrid& grid() const { return control<keys::KeyGrid>("Grid1"); }
    /// All keys on a laptop.
    void fitLaptop() const
    {
        form->resize(laptop);
        grid().fitKeyboard();
        QApplication::processEvents();
    }
    [[nodiscard]] QTableView& listOfPlus() const
    {
        control<QRadioButton>("plucode").click();
        QApplication::processEvents();
        return control<QTableView>("plulist");
    }

    Shop shop = {};
    NoBoxes boxes = {};
    std::unique_ptr<keys::KeyLayout> form = shown<keys::KeyLayout>(shop.keyboard, shop.values, boxes);
};

void openEditor(benchmark::State& state)
{
    Shop shop;
    NoBoxes boxes;
    bench::Times times;
    for (auto _ : state) {
        std::unique_ptr<keys::KeyLayout> form;
        times.add([&] { form = shown<keys::KeyLayout>(shop.keyboard, shop.values, boxes); });
        require(
            form->findChild<QTableView*>(QStringLiteral("Grid1"))->model()->index(12, 0).data().toString() ==
                QStringLiteral("P00000000000000100 Article 100"),
            "the first key");
    }
    times.report(state);
}

void changeLevel(benchmark::State& state)
{
    const OpenEditor editor;
    bench::Times times;
    int level = 1;
    for (auto _ : state) {
        level = level % keys::levelCount + 1;
        auto& button = editor.control<QPushButton>(QStringLiteral("CSCmdBtn%1").arg(level + 2));
        times.add([&] {
            button.click();
            QApplication::processEvents();
        });
        require(editor.form->windowTitle().endsWith(QString::number(level)), "the level is shown");
    }
    times.report(state);
}

/// Replaces the filter, or adds to it, as a typist does, and lets the list paint.
void filterPlus(benchmark::State& state)
{
    const OpenEditor editor;
    bench::Times times;
    const auto* const list = editor.listOfPlus().model();
    auto& box = editor.control<QLineEdit>("ListFilter");
    require(list->rowCount() == pluCount, "all PLUs");
    const QString typed = QStringLiteral("art123");
    int stroke = 0;
    for (auto _ : state) {
        const QChar key = typed[stroke % typed.size()];
        if (stroke++ % 3 == 0)
            box.selectAll();
        times.add([&] {
            QKeyEvent press(QEvent::KeyPress, key.unicode(), Qt::NoModifier, QString(key));
            QApplication::sendEvent(&box, &press);
            QApplication::processEvents();
        });
    }
    require(list->rowCount() > 0 && list->rowCount() < pluCount, "the list is filtered");
    times.report(state);
}

void pressKey(QWidget& control, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(&control, &press);
    QApplication::processEvents();
}

/// All keys in view, one step of the zoom after the other, each of them painted.
void zoomKeys(benchmark::State& state)
{
    const OpenEditor editor;
    bench::Times times;
    editor.fitLaptop();
    keys::KeyGrid& grid = editor.grid();
    int step = 0;
    for (auto _ : state) {
        const int before = grid.zoomPercent();
        times.add([&] {
            grid.zoomBy(step++ % 8 < 4 ? 1 : -1);
            QApplication::processEvents();
        });
        require(grid.zoomPercent() != before, "the keys have another size");
    }
    times.report(state);
}

/// The block grows by a row or column of keys with each press; its current key is sought on all levels.
void selectKeys(benchmark::State& state)
{
    const OpenEditor editor;
    bench::Times times;
    editor.fitLaptop();
    keys::KeyGrid& grid = editor.grid();
    int step = 0;
    for (auto _ : state) {
        if (step++ % 24 == 0)
            grid.setCurrentCell({0, 0});
        times.add([&] { pressKey(grid, step % 2 == 0 ? Qt::Key_Right : Qt::Key_Down, Qt::ShiftModifier); });
    }
    require(grid.chosenCells().size() > 1, "a block is chosen");
    times.report(state);
}

/// A level filled from the first rows of 100,000 PLUs, from the preview to the level that has changed.
void fillLevel(benchmark::State& state)
{
    const OpenEditor editor;
    bench::Times previews;
    bench::Times fills;
    const QTableView& list = editor.listOfPlus();
    for (const char* const box : {"FillSkipsUsed", "FillSkipsPlaced"})
        editor.control<QCheckBox>(box).setChecked(false);
    auto& fill = editor.control<QAction>("Fill");
    int first = 0;
    for (auto _ : state) {
        editor.grid().setCurrentCell({0, 0});
        fill.setChecked(true);
        QApplication::processEvents();
        const auto rows = QItemSelection(list.model()->index(first, 0), list.model()->index(first + 199, 1));
        first += 200;
        previews.add([&] {
            list.selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
            QApplication::processEvents();
        });
        fills.add([&] {
            editor.control<QPushButton>("FillPut").click();
            QApplication::processEvents();
        });
        require(!fill.isChecked(), "the level is filled");
    }
    fills.report(state);
    state.counters["preview_ms"] = previews.average();
}

/// All of 100,000 PLUs marked at once, with the preview.
void markAllPlus(benchmark::State& state)
{
    const OpenEditor editor;
    bench::Times times;
    QTableView& list = editor.listOfPlus();
    editor.control<QAction>("Fill").setChecked(true);
    for (auto _ : state) {
        list.clearSelection();
        QApplication::processEvents();
        times.add([&] { pressKey(list, Qt::Key_A, Qt::ControlModifier); });
    }
    times.report(state);
}

/// Opened with the list of all PLUs beside its 50 lines.
void openLookUps(benchmark::State& state)
{
    Shop shop;
    NoBoxes boxes;
    bench::Times times;
    for (auto _ : state) {
        std::unique_ptr<keys::frmwlu> form;
        times.add([&] { form = shown<keys::frmwlu>(shop.values, boxes); });
        require(form->findChild<QTableView*>(QStringLiteral("plulist"))->model()->rowCount() == pluCount,
                "all PLUs");
    }
    times.report(state);
}

void nextLookUp(benchmark::State& state)
{
    Shop shop;
    NoBoxes boxes;
    bench::Times times;
    const auto form = shown<keys::frmwlu>(shop.values, boxes);
    auto* const button = form->findChild<QPushButton*>(QStringLiteral("NextRecord"));
    int number = 1;
    for (auto _ : state) {
        times.add([&] {
            button->click();
            QApplication::processEvents();
        });
        ++number;
    }
    require(form->findChild<QLineEdit*>(QStringLiteral("WLUNumber"))->text() == QString::number(number),
            "one after another");
    times.report(state);
}

/// Every function key gets another function each time, so that both sides have rows to write.
void saveLevel(benchmark::State& state)
{
    const Shop shop;
    const auto database = std::make_shared<store::Database>(shop.database());
    keys::KeyLevel level(shop.keyboard, database);
    level.read(1);
    const bench::BareDatabase bare(shop.database());
    sqlite3_stmt* const setLink = bare.prepare("update KEYLINK set KEYLINK = ? where ID = ?");
    sqlite3_stmt* const setNumber = bare.prepare("update NLU set NLU = ? where ID = ?");
    int turn = 0;
    const auto codeOf = [&turn](int key) {
        return std::to_string((key + turn) % functionCount + 1);
    };
    const auto program = [&] {
        ++turn;
        int number = 0;
        for (const keys::KeyCell cell : shop.keyboard.walk())
            level.setKey(cell, {QString::fromStdString(codeOf(++number)), {}, {}, keys::KeyState::Function});
    };
    const auto updateBare = [&] {
        ++turn;
        bare.run("begin immediate");
        for (int key = 1; key <= shop.keyboard.keysPerLevel; ++key) {
            const std::string code = codeOf(key);
            const std::string text = bench::pluNumber(key + turn);
            bench::bindText(setLink, 1, code);
            sqlite3_bind_int(setLink, 2, key);
            bench::runOnce(setLink);
            bench::bindText(setNumber, 1, text);
            sqlite3_bind_int(setNumber, 2, key);
            bench::runOnce(setNumber);
        }
        bare.run("commit");
    };
    // The bare loop has changed every row, so that ours writes every row as well.
    bench::compare(
        state,
        [&] {
            program();
            level.save();
        },
        updateBare);
    level.read(1);
    require(level.key({12, 0}).function.toStdString() == codeOf(1), "the first key is stored");
    sqlite3_finalize(setLink);
    sqlite3_finalize(setNumber);
}

} // namespace

BENCHMARK(openEditor)->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(changeLevel)->Unit(benchmark::kMillisecond)->Iterations(50);
BENCHMARK(filterPlus)->Unit(benchmark::kMillisecond)->Iterations(60);
BENCHMARK(zoomKeys)->Unit(benchmark::kMillisecond)->Iterations(60);
BENCHMARK(selectKeys)->Unit(benchmark::kMillisecond)->Iterations(96);
BENCHMARK(fillLevel)->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(markAllPlus)->Unit(benchmark::kMillisecond)->Iterations(10);
BENCHMARK(openLookUps)->Unit(benchmark::kMillisecond)->Iterations(20);
BENCHMARK(nextLookUp)->Unit(benchmark::kMillisecond)->Iterations(90);
BENCHMARK(saveLevel)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(50);

int main(int argc, char** argv)
{
    return norvane::bench::runWithWidgets(argc, argv);
}
