// An overlay on the printer, from the question before it to the end of the job.
#pragma once

#include "overlay/Document.h"
#include "overlay/OverlayDialogs.h"

#include <QPrinter>

#include <functional>
#include <memory>

namespace norvane
{
class Boxes;
}

namespace norvane::overlay
{

/// Finds the printer that was chosen; null when the system does not have it (any more).
using PrinterFinder = std::function<std::unique_ptr<QPrinter>(const PrinterChoice&)>;
[[nodiscard]] std::unique_ptr<QPrinter> findPrinter(const PrinterChoice& choice);

/// Sets @p printer up for a sheet of A4 in the chosen orientation.
void setUpSheet(QPrinter& printer, const PrinterChoice& choice);

/// Asks whether to start, and once more when texts will be cut. Prints at true size with the printer's own
/// correction, and tells when that fails.
void printOverlay(const Document& document, const QString& name, const PrinterChoice& choice,
                  const PrinterFinder& finder, Boxes& boxes);

} // namespace norvane::overlay
