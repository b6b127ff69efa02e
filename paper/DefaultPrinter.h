// The system's default printer, and what its jobs need of it.
#pragma once

#include <QPrinter>

#include <memory>

namespace norvane::paper
{

/// @return the system's default printer at its full resolution; null if the system has none.
[[nodiscard]] std::unique_ptr<QPrinter> defaultPrinter();

/// Asks for the printer's high quality in each job that @p printer begins from now on.
void askForHighQuality(QPrinter& printer);

/// Whether the system still has @p printer; a job for a removed printer is accepted without an error.
[[nodiscard]] bool isThere(const QPrinter& printer);

} // namespace norvane::paper
