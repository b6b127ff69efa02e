// The printer that the system prints on when nobody is asked.
#pragma once

#include "paper/Sheet.h"

#include <QPrinter>

#include <memory>

namespace norvane::paper
{

/// @return the system's default printer at its full resolution; null when the system has none.
[[nodiscard]] std::unique_ptr<QPrinter> defaultPrinter();

/// The sheet of A4 that @p printer prints on as it is set up: its orientation, and the margins that it cannot
/// print in. A printer that tells no margins is taken for a usual one.
[[nodiscard]] Sheet sheetOf(const QPrinter& printer);

/// Asks for the printer's high quality in each job that @p printer begins from now on.
void askForHighQuality(QPrinter& printer);

/// Whether the system still has @p printer, which takes a job for one that has gone and says nothing of it.
[[nodiscard]] bool isThere(const QPrinter& printer);

} // namespace norvane::paper
