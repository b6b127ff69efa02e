// The keys of a summary's blocks.
#pragma once

#include "reports/lines/LayoutKeys.h"

namespace norvane::reports
{

/// The keys of a section [Block1] beside those of its table.
[[nodiscard]] std::span<const KeyRule> blockKeys();

} // namespace norvane::reports
