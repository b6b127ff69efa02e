// See TableOpeners.h.
#include "shell/TableOpeners.h"

#include "platform/FailureBox.h"
#include "screens/OptionForm.h"
#include "screens/table/TableWindow.h"
#include "shell/FrmMain.h"
#include "shell/MainStatusBar.h"
#include "ui/WaitPointer.h"

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

void showRecord(FrmMain& main, const screens::TableWindow& table, const QString& key,
                const ScreenOf& screenOf)
{
    if (screens::OptionForm* const form = screenOf(main, table.screenFile(), table.databasePath())) {
        main.bringToFront(*form);
        form->showKey(key);
    }
}

/// A table reads its records again when it comes to the front and after a menu entry, as screens do.
void addTable(FrmMain& main, screens::TableWindow* table, const ScreenOf& screenOf)
{
    QObject::connect(
        table, &screens::TableWindow::recordWanted, &main,
        [&main, table, screenOf](const QString& key) { showRecord(main, *table, key, screenOf); });
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

} // namespace

screens::ScreenTool makeTableTool(FrmMain& main, const ApplicationValues& values, Boxes& boxes,
                                  const ScreenOf& screenOf,
                                  const std::shared_ptr<store::WorkHistory>& history)
{
    const auto open = [&main, &values, &boxes, screenOf, history](screens::OptionForm& form) {
        openOrTell(boxes, [&] {
            const ui::WaitPointer wait;
            screens::TableWindow* table = tableOf(main, form);
            if (table == nullptr) {
                table = new screens::TableWindow(
                    {form.screenFile(), form.databasePath(), form.caption(),
                     [&form](const QString& field) { return form.labelOf(field); }, history},
                    values, boxes, screens::ColumnMemory::ofThisUser());
                addTable(main, table, screenOf);
            }
            main.bringToFront(*table);
            table->goTo(form.recordKey());
        });
    };
    return {u"ShowTable"_s, u"&Table of All Records"_s, QKeySequence(u"Ctrl+T"_s), open};
}

void followInTable(FrmMain& main, screens::OptionForm& form)
{
    QObject::connect(&form, &screens::OptionForm::recordShown, &main, [&main, &form](const QString& key) {
        if (screens::TableWindow* const table = tableOf(main, form))
            table->mark(key);
    });
}

} // namespace norvane::shell
