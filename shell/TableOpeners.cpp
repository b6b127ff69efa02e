// See TableOpeners.h.
#include "shell/TableOpeners.h"

#include "exchange/ChangedRecords.h"
#include "platform/FailureBox.h"
#include "screens/OptionForm.h"
#include "screens/table/TableWindow.h"
#include "shell/FrmMain.h"
#include "shell/MainStatusBar.h"
#include "shell/TableTools.h"
#include "ui/WaitPointer.h"

#include <QFileInfo>
#include <QMdiSubWindow>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

/// @return nullptr if it is not open.
screens::TableWindow* tableOf(const FrmMain& main, const screens::OptionForm& form)
{
    const auto open = main.findChildren<screens::TableWindow*>();
    const auto found = std::ranges::find_if(open, [&form](const screens::TableWindow* table) {
        return table->screenFile() == form.screenFile() && table->databasePath() == form.databasePath();
    });
    return found == open.end() ? nullptr : *found;
}

/// A table reads its records again when it comes to the front and after a menu entry, as screens do.
void addTable(const TableSurroundings& around, screens::TableWindow* table)
{
    FrmMain& main = around.main;
    QObject::connect(table, &screens::TableWindow::recordWanted, &main,
                     [around, table](const QString& key) { showOnScreen(around, *table, key); });
    QObject::connect(table, &screens::TableWindow::noticeChanged, &main.statusBar1(),
                     &MainStatusBar::setNotice);
    QObject::connect(table, &screens::TableWindow::stored, &main, &FrmMain::entryDone);
    QObject::connect(&main, &FrmMain::entryDone, table, &screens::TableWindow::refresh);
    const QMdiSubWindow& child = main.showChild(table);
    QObject::connect(&child, &QMdiSubWindow::windowStateChanged, table,
                     [table](Qt::WindowStates before, Qt::WindowStates now) {
                         if ((now & ~before).testFlag(Qt::WindowActive))
                             table->refresh();
                     });
}

/// The registers are those of the customer whose database it is, who need not be the chosen one.
std::vector<store::Value> unsentKeys(ApplicationValues values, const QString& databasePath,
                                     const screens::TableSource& source)
{
    values.databasePath = databasePath;
    values.customerPath = QFileInfo(databasePath).path();
    return exchange::changedRecords(values, source.table, source.keyField);
}

screens::TableWindow* openTable(const TableSurroundings& around, screens::OptionForm& form)
{
    const ui::WaitPointer wait;
    screens::TableOrder order{
        form.screenFile(), form.databasePath(),
        form.caption(),    [&form](const QString& field) { return form.labelOf(field); },
        around.history,    makeTableTools(around, form)};
    order.unsentKeys = [&values = around.values, path = form.databasePath()](const auto& source) {
        return unsentKeys(values, path, source);
    };
    auto* const table =
        new screens::TableWindow(order, around.values, around.boxes, screens::ColumnMemory::ofThisUser());
    addTable(around, table);
    return table;
}

} // namespace

screens::ScreenTool makeTableTool(const TableSurroundings& around)
{
    const auto open = [around](screens::OptionForm& form) {
        openOrTell(around.boxes, [&] {
            screens::TableWindow* table = tableOf(around.main, form);
            if (table == nullptr)
                table = openTable(around, form);
            around.main.bringToFront(*table);
            table->goTo(form.recordKey());
        });
    };
    return {u"ShowTable"_s, u"&Table of All Records"_s, QKeySequence(u"Ctrl+T"_s), open};
}

screens::OptionForm* showOnScreen(const TableSurroundings& around, const screens::TableWindow& table,
                                  const QString& key)
{
    screens::OptionForm* const form = around.screenOf(around.main, table.screenFile(), table.databasePath());
    if (form != nullptr) {
        around.main.bringToFront(*form);
        form->showKey(key);
    }
    return form;
}

void followInTable(FrmMain& main, screens::OptionForm& form)
{
    QObject::connect(&form, &screens::OptionForm::recordShown, &main, [&main, &form](const QString& key) {
        if (screens::TableWindow* const table = tableOf(main, form))
            table->mark(key);
    });
}

} // namespace norvane::shell
