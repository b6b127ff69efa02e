// How keys of the computer's keyboard lead from cell to cell of an overlay.
#pragma once

#include "overlay/OverlayLayout.h"

#include <QString>

#include <vector>

namespace norvane::overlay
{

/// Where an arrow key leads.
enum class ArrowDirection { Left, Right, Up, Down };

/// All cells in the order of reading: key by key along each row of keys, and down the lines of a key.
[[nodiscard]] std::vector<int> readingOrder(const OverlayLayout& layout);

/// A cell's place in words: "Column 3, key 4, line 1".
[[nodiscard]] QString placeName(const OverlayLayout& layout, int cell);

/// The nearest cell to @p cell in a direction; @p cell itself at the edge.
[[nodiscard]] int neighbour(const OverlayLayout& layout, int cell, ArrowDirection direction);

} // namespace norvane::overlay
