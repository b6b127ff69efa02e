// Opens every window of the program, one after the other.
#pragma once

#include <QWidget>

#include <functional>

namespace norvane::windows
{

class FilledShop;

/// Receives each window while it is open, under a unique name.
using Look = std::function<void(const QString& name, QWidget& window)>;

/// The main window with its menus, every screen on a model that has it, every dialog and box.
void lookAtEveryWindow(const Look& look);

/// The table of every screen that has one, wide enough for its columns up to a limit, with some records.
void lookAtEveryTable(const Look& look);
/// The main window of @p shop, which has an overview from then on; part of lookAtEveryWindow().
void lookAtOverview(FilledShop& shop, const Look& look);

} // namespace norvane::windows
