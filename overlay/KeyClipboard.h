// Whole keys on the clipboard, so that they can be pasted into other overlays too.
#pragma once

#include "overlay/Document.h"

#include <vector>

class QMimeData;

namespace norvane::overlay
{

/// The cells of a key for the clipboard; other programs see their texts. The caller owns it.
[[nodiscard]] QMimeData* keyToMime(const std::vector<TextCell>& cells);
/// @return an empty list if the clipboard has no key or a damaged one.
[[nodiscard]] std::vector<TextCell> keyFromMime(const QMimeData& mime);

} // namespace norvane::overlay
