// See FrameRecords.h.
#include "shell/FrameRecords.h"

#include "screens/OptionForm.h"
#include "screens/table/TableWindow.h"
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
    const QString notice = undoLatestWork(values, boxes, history);
    refreshRecords(main);
    main.statusBar1().setNotice(notice);
}

} // namespace norvane::shell
