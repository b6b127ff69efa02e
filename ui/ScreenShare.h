// How large the contents of a form may be on a small screen.
#pragma once

#include <QSize>

class QWidget;

namespace norvane::ui
{

/// @p size with the font in use, for contents of @p form that scroll: at most the width of the screen, and
/// @p share of its height. Large type leaves room for the buttons that way.
[[nodiscard]] QSize scaledOnScreen(const QWidget& form, QSize size, double share = 1);

} // namespace norvane::ui
