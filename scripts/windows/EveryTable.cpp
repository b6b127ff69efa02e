// The tables of all screens, on every model; see EveryWindow.h.
#include "scripts/windows/EveryWindow.h"
#include "scripts/windows/FilledShop.h"

#include <QtWidgets>

using namespace Qt::Literals::StringLiterals;

namespace norvane::windows
{
namespace
{

/// All columns side by side, as far as they can be seen at once.
void lookAtColumns(FilledShop& shop, QWidget& screen, const QString& name, const Look& look)
{
    constexpr QSize widest(2600, 420);
    screen.findChild<QAction*>(u"ShowTable"_s)->trigger();
    QWidget& table = *shop.frame().findChild<QWidget*>(u"TableWindow"_s);
    table.parentWidget()->resize(widest);
    QApplication::processEvents();
    look(name, *table.parentWidget());
    table.close();
    deleteClosed();
}

void lookAtTables(FilledShop& shop, QSet<QString>& seen, const Look& look)
{
    for (const shell::MenuEntry& entry : shell::menuTree()) {
        const QString file = shop.screenFile(entry);
        if (file.isEmpty() || seen.contains(file.toLower()))
            continue;
        seen.insert(file.toLower());
        QWidget& screen = shop.openScreen(entry);
        if (screen.findChild<QAction*>(u"ShowTable"_s) != nullptr)
            lookAtColumns(shop, screen, u"table-"_s + file.section(u'.', 0, 0), look);
        test::press(screen, "ExitForm");
        deleteClosed();
    }
}

} // namespace

void lookAtEveryTable(const Look& look)
{
    QSet<QString> seen;
    for (const int model : modelOrder) {
        FilledShop shop(model);
        lookAtTables(shop, seen, look);
    }
}

} // namespace norvane::windows
