// Reads a window as a screen reader does and names the controls that it could not say.
#pragma once

#include <QStringList>

class QWidget;

namespace norvane::windows
{

/// Looks at every control in view of @p window, which must be shown: it has a name of its own that is not its
/// objectName, a role, and the state, tick and value that it shows; tables have their cells.
/// @return a line for each fault; empty when every control can be said.
[[nodiscard]] QStringList unspokenControls(QWidget& window);

} // namespace norvane::windows
