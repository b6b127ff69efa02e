// What a key says, as large as its cell allows.
#pragma once

#include "keys/KeyItems.h"

class QPainter;
class QRect;

namespace norvane::keys
{

/// Paints @p text into @p cell, with the painter's font and pen. A number is above its name, in small digits,
/// and without the zeros that fill it where all of them would be too small to be read.
void paintKeyText(QPainter& painter, const QRect& cell, const QString& text, KeyState state);

/// Between the edge of a key and what is in it.
inline constexpr int keyPadding = 4;

/// Where the mark of a key is, which its text keeps clear of: in the lower right corner, but beside the
/// number of a narrow key, whose name needs the whole width.
[[nodiscard]] QRect keyMarkPlace(const QRect& cell, KeyState state);
/// The side of the mark.
[[nodiscard]] int keyMarkPixels();

} // namespace norvane::keys
