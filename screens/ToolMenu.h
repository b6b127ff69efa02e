// The button "More" of windows that offer tools.
#pragma once

#include "screens/WindowTool.h"

#include <QAction>
#include <QPushButton>

namespace norvane::screens
{

/// Makes the button with an empty menu.
[[nodiscard]] QPushButton* makeEmptyMoreButton(QWidget& window);

/// Adds an entry to the menu of @p more. @p keys work in all of @p window.
QAction* addToMenu(const QPushButton& more, QWidget& window, const QString& name, const QString& caption,
                   const QKeySequence& keys);

/// Makes the button with @p tools in its menu. @return nullptr without tools.
template <typename Window>
[[nodiscard]] QPushButton* makeMoreButton(const QVector<WindowTool<Window>>& tools, Window& window)
{
    if (tools.isEmpty())
        return nullptr;
    QPushButton* const button = makeEmptyMoreButton(window);
    for (const auto& tool : tools) {
        QAction* const action = addToMenu(*button, window, tool.name, tool.caption, tool.keys);
        QObject::connect(action, &QAction::triggered, &window, [&window, use = tool.use] { use(window); });
    }
    return button;
}

} // namespace norvane::screens
