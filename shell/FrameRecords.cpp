// See FrameRecords.h.
#include "shell/FrameRecords.h"

#include "screens/OptionForm.h"
#include "screens/table/TableWindow.h"
#include "shell/FieldLabels.h"
#include "shell/FrmMain.h"
#include "shell/MainStatusBar.h"
#include "shell/UndoWork.h"

namespace norvane::shell
{

void refreshRecords(const FrmMain& main)
{
    for (auto* const form : main.findChildren<screens::OptionForm*>())
        form->refreshAll();
    for (auto* const table : main.findChildren<screens::TableWindow*>())
        table->refresh();
}

void undoStored(FrmMain& main, const ApplicationValues& values, Boxes& boxes, store::WorkHistory& history)
{
    FieldLabels labels(values);
    const UndoNames names{
        [&labels](const QString& table, const QString& key) { return labels.record(table, key); },
        [&labels](const QString& table, const QString& field) { return labels.field(table, field); },
        [&labels](const QString& table, const QString& field, const QString& plain) {
            return labels.value(table, field, plain);
        }};
    const QString notice = undoLatestWork(values, boxes, history, names);
    refreshRecords(main);
    main.statusBar1().setNotice(notice);
}

} // namespace norvane::shell
