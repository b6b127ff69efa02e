// The sheet that a printer prints on.
#pragma once

#include "paper/Sheet.h"

class QPrinter;

namespace norvane::paper
{

/// The sheet of @p printer as set up: its orientation, and the margins that it cannot print in. A printer
/// that reports no margins gets the usual ones. A size other than Letter counts as A4.
[[nodiscard]] Sheet sheetOf(const QPrinter& printer);

} // namespace norvane::paper
