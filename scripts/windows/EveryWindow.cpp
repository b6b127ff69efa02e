// The windows as tables, by how they open; see EveryWindow.h.
#include "scripts/windows/EveryWindow.h"

#include "reports/window/Report.h"
#include "scripts/windows/EveryDialog.h"
#include "scripts/windows/FilledShop.h"
#include "ui/FrmSearch.h"
#include "ui/MessageBoxes.h"

#include <QtTest>
#include <QtWidgets>

using namespace Qt::Literals::StringLiterals;

namespace norvane::windows
{
namespace
{

/// Boxes that wait for an answer, with the longest texts that the program has for them.
struct WaitingBox {
    const char* name;
    void (*open)(Boxes& boxes, QWidget& frame);
};

constexpr WaitingBox waitingBoxes[] = {
    {"message",
     [](Boxes& boxes, QWidget&) {
         boxes.message(
             u"Your new database has been created please\rupload program from your cash register.  \r"_s,
             u"Information "_s, BoxIcon::Information);
     }},
    {"question",
     [](Boxes& boxes, QWidget&) {
         boxes.ask(
             u"Put Corner Shop as it was on 24/11/2026 22:05, before the upload?\r\rEverything changed since then is undone, sales included. A copy of its present state is made first."_s,
             u"Please Check"_s, BoxIcon::Question, BoxAnswer::No);
     }},
    {"choice",
     [](Boxes& boxes, QWidget&) {
         boxes.choose(
             u"Since this record was shown here, it was changed by another screen, a price change or an upload.\r\rSave replaces those changes by the values shown here.\rShow shows them here, and drops what you have typed."_s,
             u"Record Changed"_s, u"&Save"_s, u"S&how"_s);
     }},
    {"input",
     [](Boxes& boxes, QWidget&) {
         boxes.input(u"Please enter the Euro Conversion Rate"_s, u"Enter Euro Conversion Rate"_s,
                     u"1.269738"_s);
     }},
    {"find",
     [](Boxes&, QWidget& frame) {
         static_cast<void>(ui::FrmSearch::ask(&frame, u"PLU number"_s));
     }},
};

/// Windows inside the frame, by their menu entries.
constexpr const char* formsInFrame[] = {"DataSetup", "About", "CollectSales", "Quelmontkeyboard"};

void lookAtMenus(shell::FrmMain& frame, const Look& look)
{
    for (QMenu* const menu : frame.findChildren<QMenu*>()) {
        menu->popup({});
        look(u"menu-"_s + menu->objectName(), *menu);
        menu->close();
    }
}

/// With a preview of all records.
void lookAtSetField(QWidget& table, const QString& name, const Look& look)
{
    QTimer::singleShot(0, &table, [&] {
        auto* const dialog = table.findChild<QDialog*>(u"SetFieldDialog"_s);
        dialog->findChild<QLineEdit*>(u"NewValue"_s)->setText(u"1"_s);
        dialog->findChild<QComboBox*>(u"HowToSet"_s)->setCurrentIndex(1);
        look(name, *dialog);
        dialog->reject();
    });
    table.findChild<QPushButton*>(u"SetField"_s)->click();
}

/// With a choice made and a change that is not stored.
void lookAtTable(FilledShop& shop, QWidget& screen, const QString& name, const Look& look)
{
    screen.findChild<QAction*>(u"ShowTable"_s)->trigger();
    QWidget& table = *shop.frame().findChild<QWidget*>(u"TableWindow"_s);
    QAbstractItemModel& cells = *table.findChild<QTableView*>(u"TableView"_s)->model();
    cells.setData(cells.index(0, 1), u"Another text"_s);
    auto& column = *table.findChild<QComboBox*>(u"ChoiceColumn"_s);
    QTest::keyClicks(&column, column.itemText(1));
    QTest::keyClick(table.findChild<QComboBox*>(u"Choice"_s), Qt::Key_Down);
    QApplication::processEvents();
    look(name, *table.parentWidget());
    lookAtSetField(table, name + u"-field"_s, look);
    shop.boxes().unsavedAnswers = {UnsavedAnswer::Discard};
    table.close();
    deleteClosed();
}

/// The list of the places that use the record; the button counts them first.
void lookAtUses(QPushButton& uses, const QString& name, const Look& look)
{
    constexpr int longestCount = 1000;
    if (!QTest::qWaitFor([&] { return uses.isEnabled(); }, longestCount))
        return;
    uses.click();
    QApplication::processEvents();
    QWidget* const list = uses.findChild<QListWidget*>(u"UsesList"_s)->window();
    look(name, *list);
    list->close();
}

/// With the list of records open beside those that have one.
void lookAtScreen(FilledShop& shop, const shell::MenuEntry& entry, const QString& name, const Look& look)
{
    QWidget& screen = shop.openScreen(entry);
    QApplication::processEvents();
    look(name, *screen.parentWidget());
    if (auto* const handle = screen.findChild<QToolButton*>(u"ListHandle"_s);
        handle && name.contains(u"PLU"_s)) {
        handle->click();
        QApplication::processEvents();
        look(name + u"-list"_s, *screen.parentWidget());
        if (auto* const uses = screen.findChild<QPushButton*>(u"RecordUses"_s))
            lookAtUses(*uses, name + u"-uses"_s, look);
        lookAtTable(shop, screen, name + u"-table"_s, look);
    }
    test::press(screen, "ExitForm");
    deleteClosed();
}

void lookAtScreens(FilledShop& shop, QSet<QString>& seen, const Look& look)
{
    for (const shell::MenuEntry& entry : shell::menuTree()) {
        const QString file = shop.screenFile(entry);
        if (file.isEmpty() || seen.contains(file.toLower()))
            continue;
        seen.insert(file.toLower());
        lookAtScreen(shop, entry, u"screen-"_s + file.section(u'.', 0, 0), look);
    }
}

void lookAtFormsInFrame(FilledShop& shop, const Look& look)
{
    for (const char* const entry : formsInFrame) {
        QWidget& form = shop.openForm(entry);
        QApplication::processEvents();
        look(u"frame-"_s + QLatin1String(entry), *form.parentWidget());
        form.close();
        deleteClosed();
    }
}

void lookAtBoxes(QWidget& frame, const Look& look)
{
    ui::MessageBoxes boxes;
    for (const WaitingBox& box : waitingBoxes) {
        QTimer::singleShot(0, &frame, [&] {
            QWidget* const window = QApplication::activeModalWidget();
            QApplication::processEvents();
            look(u"box-"_s + QLatin1String(box.name), *window);
            window->close();
        });
        box.open(boxes, frame);
    }
}

/// The price list, printed to the screen.
void lookAtReport(FilledShop& shop, const Look& look)
{
    reports::ReportRequest request;
    request.reportFile = shop.folder().appFile(u"pluprice.rpt"_s);
    request.dataFile = shop.values().databasePath;
    reports::Report(shop.frame(), shop.boxes()).run(std::move(request));
    auto* const window = shop.frame().findChild<QWidget*>(u"ReportPreview"_s);
    window->findChild<QPushButton*>(u"FindButton"_s)->click();
    QApplication::processEvents();
    look(u"report-preview"_s, *window);
    window->close();
    deleteClosed();
}

} // namespace

void lookAtEveryWindow(const Look& look)
{
    QSet<QString> seen;
    for (const int model : modelOrder) {
        FilledShop shop(model);
        lookAtScreens(shop, seen, look);
        if (model == modelOrder[0]) {
            lookAtOverview(shop, look);
            lookAtMenus(shop.frame(), look);
            lookAtFormsInFrame(shop, look);
            lookAtDialogs(shop, look);
            lookAtReport(shop, look);
            lookAtBoxes(shop.frame(), look);
        }
        if (model == 3)
            lookAtDorvikDialogs(shop, look);
    }
}

} // namespace norvane::windows
