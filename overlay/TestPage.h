// The page that a printer is measured with.
#pragma once

#include "overlay/SheetPrint.h"

namespace norvane::overlay
{

/// Prints the page that a printer is measured with: a cross of two lines of 100 mm.
/// @return false when the device failed.
[[nodiscard]] bool printTestPage(QPagedPaintDevice& device, const TargetPrinter& target);

/// Where the lines of the test page begin, from the paper's left and upper edge, and how long each is.
inline constexpr paper::Length testLineLeft = paper::millimetres(50);
inline constexpr paper::Length testLineTop = paper::millimetres(40);
inline constexpr paper::Length testLineLength = paper::millimetres(100);

} // namespace norvane::overlay
