// Opens every window of the program, one after the other.
#pragma once

#include <QWidget>

#include <functional>

namespace norvane::windows
{

/// Gets each window while it stands open, under a name of its own.
using Look = std::function<void(const QString& name, QWidget& window)>;

/// The main window with its menus, every screen on a model that has it, every dialog and box.
void lookAtEveryWindow(const Look& look);

} // namespace norvane::windows
