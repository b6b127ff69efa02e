// Buttons for what the mouse would otherwise find in the grid's menu only.
#pragma once

#include <QWidget>

class QAction;

namespace norvane::keys
{

/// A button for each action, with its caption, its shortcut in the tool tip, and pressed while it is checked.
class KeyViewRow : public QWidget
{
    Q_OBJECT

public:
    KeyViewRow(const QList<QAction*>& actions, QWidget* parent);
};

} // namespace norvane::keys
