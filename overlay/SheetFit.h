// Which keys a printer can print.
#pragma once

#include "overlay/SheetPrint.h"

#include <optional>
#include <vector>

namespace norvane::overlay
{

/// The keys that the printer cannot print whole, as indexes into the layout's keys.
[[nodiscard]] std::vector<std::size_t> keysOutside(const OverlayLayout& layout, const TargetPrinter& target);
/// True when no move helps, since the keys reach further across than the page.
[[nodiscard]] bool isWiderThanPage(const OverlayLayout& layout, const TargetPrinter& target);
/// The target's correction with the smallest move that brings all keys inside the printable area, if the area
/// has room for them.
[[nodiscard]] std::optional<paper::PrinterCorrection> correctionToFit(const OverlayLayout& layout,
                                                                      const TargetPrinter& target);

} // namespace norvane::overlay
