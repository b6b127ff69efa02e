// See CopyTool.h.
#include "shell/CopyTool.h"

#include "base/CustomerSettings.h"
#include "platform/FailureBox.h"
#include "programme/CopyToShopsDialog.h"
#include "programme/ProgrammeParts.h"
#include "screens/OptionForm.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

/// The customer whose database the screen shows, which need not be the chosen one.
ApplicationValues customerOnScreen(const ApplicationValues& values, const screens::OptionForm& form)
{
    ApplicationValues shown = values;
    shown.databasePath = form.databasePath();
    shown.customerName = customerOf(values, shown.databasePath);
    shown.customerPath = QFileInfo(shown.databasePath).path();
    return shown;
}

void copyFrom(const screens::OptionForm& form, const ApplicationValues& values, Boxes& boxes, QWidget* window)
{
    QStringList unknown;
    const QStringList tables = programme::tablesNamed({form.table()}, unknown);
    if (tables.isEmpty()) {
        boxes.message(u"The table %1 is not part of a programme."_s.arg(form.table()));
        return;
    }
    const programme::ScreenContents contents{tables.first(),
                                             form.caption(),
                                             form.recordKey(),
                                             form.shownRecord(),
                                             form.isWindowModified(),
                                             [&form](const QString& field) {
                                                 return form.labelOf(field);
                                             }};
    programme::CopyToShopsDialog dialog(customerOnScreen(values, form), contents, boxes, window);
    dialog.exec();
}

} // namespace

screens::ScreenTool makeCopyTool(FrmMain& main, const ApplicationValues& values, Boxes& boxes)
{
    const auto use = [&main, &values, &boxes](const screens::OptionForm& form) {
        openOrTell(boxes, [&] { copyFrom(form, values, boxes, &main); });
    };
    return {u"CopyToCustomers"_s, u"&Copy to Other Customers..."_s, QKeySequence(u"Ctrl+Shift+C"_s), use};
}

} // namespace norvane::shell
