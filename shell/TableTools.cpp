// See TableTools.h.
#include "shell/TableTools.h"

#include "base/CustomerSettings.h"
#include "platform/FailureBox.h"
#include "screens/OptionForm.h"
#include "screens/ScreenReader.h"
#include "screens/table/TableWindow.h"
#include "shell/CopiesDialog.h"
#include "shell/FrameRecords.h"
#include "shell/FrmMain.h"
#include "shell/TableFiles.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

using screens::TableTool;
using screens::TableWindow;

/// On its screen, whose rules a new record follows.
TableTool addLikeThis(const TableSurroundings& around)
{
    return {u"AddLikeThis"_s, u"Add &Like This"_s, QKeySequence(u"Ctrl+D"_s), [around](TableWindow& table) {
                const QString key = table.currentKey();
                if (key.isEmpty())
                    return Q_EMIT table.noticeChanged(u"Choose a record first"_s);
                screens::OptionForm* const form = showOnScreen(around, table, key);
                if (form != nullptr && form->recordKey() == key)
                    form->addLikeThis();
            }};
}

/// On screens that can delete.
TableTool deleteChosen(const TableSurroundings& around)
{
    return {u"DeleteRecords"_s, u"&Delete Records..."_s, QKeySequence(u"Ctrl+Delete"_s),
            [around](TableWindow& table) {
                openOrTell(around.boxes, [&] { table.deleteChosen(); });
                refreshRecords(around.main);
            }};
}

/// What is not stored yet comes first.
TableTool undo(const TableSurroundings& around)
{
    return {u"UndoChange"_s, u"&Undo"_s, QKeySequence::Undo, [around](TableWindow& table) {
                if (!table.takeBackLatest()) {
                    openOrTell(around.boxes, [&] {
                        undoStored(around.main, around.values, around.boxes, *around.history);
                    });
                }
            }};
}

/// A copy that was restored may have changed any record.
template <typename Window>
std::function<void(Window&)> showCopies(FrmMain& main, const ApplicationValues& values, Boxes& boxes)
{
    return [&main, &values, &boxes](const Window& window) {
        CopiesDialog(values.appPath, customerOf(values, window.databasePath()), boxes, &main).exec();
        refreshRecords(main);
    };
}

} // namespace

screens::TableTools makeTableTools(const TableSurroundings& around, const screens::OptionForm& form)
{
    screens::TableTools tools;
    const screens::ScreenButtons buttons = screens::ScreenReader(form.screenFile()).buttons();
    if (buttons.add)
        tools += addLikeThis(around);
    if (buttons.remove)
        tools += deleteChosen(around);
    tools += undo(around);
    tools += makeFileTools(around);
    tools += {u"SafetyCopies"_s,
              u"&Safety Copies..."_s,
              {},
              showCopies<TableWindow>(around.main, around.values, around.boxes)};
    return tools;
}

screens::ScreenTool makeCopiesTool(FrmMain& main, const ApplicationValues& values, Boxes& boxes)
{
    return {
        u"SafetyCopies"_s, u"&Safety Copies..."_s, {}, showCopies<screens::OptionForm>(main, values, boxes)};
}

} // namespace norvane::shell
