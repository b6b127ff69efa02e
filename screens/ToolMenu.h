// The button "More" of windows that offer tools.
#pragma once

#include <QKeySequence>
#include <QPushButton>
#include <QString>
#include <QVector>

#include <functional>

namespace norvane::screens
{

/// An entry of the menu.
struct MenuTool {
    QString name;    ///< of its action
    QString caption; ///< with its access letter
    QKeySequence keys;
    std::function<void()> use;
};

/// Makes the button; the keys of @p tools work in all of @p window. @return nullptr without tools.
[[nodiscard]] QPushButton* makeMoreButton(const QVector<MenuTool>& tools, QWidget& window);

} // namespace norvane::screens
