// Letters that are as wide on every device: measured once in units, and drawn under a scale.
#pragma once

#include <QFont>

namespace norvane::paper
{

/// Units to the square of an unrounded font's letters.
inline constexpr int unitsPerSquare = 100;

/// @p font in a size at which no width is rounded to pixels. The width of a text is the sum of its letters'
/// widths.
[[nodiscard]] QFont unrounded(QFont font);

} // namespace norvane::paper
