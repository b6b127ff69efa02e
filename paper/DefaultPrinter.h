// The system's default printer.
#pragma once

#include "paper/Sheet.h"

#include <QPrinter>

#include <memory>

namespace norvane::paper
{

/// @return the system's default printer at its full resolution; null if the system has none.
[[nodiscard]] std::unique_ptr<QPrinter> defaultPrinter();

/// The A4 sheet of @p printer as set up: its orientation, and the margins that it cannot print in. A printer
/// that reports no margins gets the usual ones.
[[nodiscard]] Sheet sheetOf(const QPrinter& printer);

/// Asks for the printer's high quality in each job that @p printer begins from now on.
void askForHighQuality(QPrinter& printer);

/// Whether the system still has @p printer; a job for a removed printer is accepted without an error.
[[nodiscard]] bool isThere(const QPrinter& printer);

} // namespace norvane::paper
