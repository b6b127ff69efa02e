// See ToolMenu.h.
#include "screens/ToolMenu.h"

#include "ui/FormKit.h"

#include <QMenu>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{

QPushButton* makeEmptyMoreButton(QWidget& window)
{
    auto* const menu = new QMenu(&window);
    menu->setObjectName(u"MoreMenu"_s);
    QPushButton* const button = ui::makeButton(u"MoreTools"_s, u"&More"_s, &window);
    button->setMenu(menu);
    return button;
}

QAction* addToMenu(const QPushButton& more, QWidget& window, const QString& name, const QString& caption,
                   const QKeySequence& keys)
{
    QAction* const action = more.menu()->addAction(caption);
    action->setObjectName(name);
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    window.addAction(action);
    return action;
}

} // namespace norvane::screens
