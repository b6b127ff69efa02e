// Reads a window as a screen reader does and names the controls that it could not say.
#pragma once

#include <QStringList>

class QWidget;

namespace norvane::windows
{

/// Checks every visible control of @p window, which must be shown: it has an accessible name that is not its
/// objectName, a role, and the state, tick and value that it shows; tables have their cells.
/// @return a line for each fault; empty if every control can be read.
[[nodiscard]] QStringList unspokenControls(QWidget& window);

} // namespace norvane::windows
