// Texts that a screen reader says as soon as they appear, wherever the focus is.
#pragma once

#include <QString>

class QWidget;

namespace norvane::ui
{

/// Has screen readers say @p text, which @p place shows: the notice of a status bar, the outcome of a search.
/// An empty text says nothing.
void announce(QWidget& place, const QString& text);

} // namespace norvane::ui
