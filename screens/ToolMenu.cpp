// See ToolMenu.h.
#include "screens/ToolMenu.h"

#include "ui/FormKit.h"

#include <QAction>
#include <QMenu>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{

QPushButton* makeMoreButton(const QVector<MenuTool>& tools, QWidget& window)
{
    if (tools.isEmpty())
        return nullptr;
    auto* const menu = new QMenu(&window);
    menu->setObjectName(u"MoreMenu"_s);
    for (const MenuTool& tool : tools) {
        QAction* const action = menu->addAction(tool.caption, &window, tool.use);
        action->setObjectName(tool.name);
        action->setShortcut(tool.keys);
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        window.addAction(action);
    }
    QPushButton* const button = ui::makeButton(u"MoreTools"_s, u"&More"_s, &window);
    button->setMenu(menu);
    return button;
}

} // namespace norvane::screens
