// How keys of the computer's keyboard lead from cell to cell of an overlay.
#pragma once

#include "overlay/OverlayLayout.h"

#include <vector>

namespace norvane::overlay
{

/// Where an arrow key leads.
enum class ArrowDirection { Left, Right, Up, Down };

/// All cells in the order of reading: key by key along each row of keys, and down the lines of a key.
[[nodiscard]] std::vector<int> readingOrder(const OverlayLayout& layout);

/// The nearest cell to @p cell in a direction; @p cell itself at the edge.
[[nodiscard]] int neighbour(const OverlayLayout& layout, int cell, ArrowDirection direction);

} // namespace norvane::overlay
