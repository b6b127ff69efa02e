// The sheet on paper and in PDF files, and the test page of a printer.
#pragma once

#include "overlay/Document.h"
#include "paper/PrinterCorrection.h"
#include "paper/Sheet.h"

#include <QTransform>

#include <optional>

class QPagedPaintDevice;

namespace norvane::overlay
{

/// A printer as the sheet needs to know it; without a name a PDF file.
struct TargetPrinter {
    QString name;
    paper::Sheet sheet;
    paper::PrinterCorrection correction;
};

/// Converts the sheet's millimetres, from the corner of the printable area, to those of the device, from the
/// paper's corner.
[[nodiscard]] QTransform placeOnPaper(const TargetPrinter& target);

/// Prints @p document on one page of @p device, a printer or a PDF, at true size.
/// @return false when the device failed.
[[nodiscard]] bool printSheet(const Document& document, QPagedPaintDevice& device,
                              const TargetPrinter& target);

/// Prints the page that a printer is measured with: a cross of two lines of 100 mm.
/// @return false when the device failed.
[[nodiscard]] bool printTestPage(QPagedPaintDevice& device, const TargetPrinter& target);

/// Where the lines of the test page begin, from the paper's left and upper edge, and how long each is.
inline constexpr paper::Length testLineLeft = paper::millimetres(50);
inline constexpr paper::Length testLineTop = paper::millimetres(40);
inline constexpr paper::Length testLineLength = paper::millimetres(100);

/// Writes the sheet as a PDF file, its printable area 5 mm inside the page. An existing file is kept if it
/// cannot be written.
/// @throws RuntimeFailure with Failure::PathOrFileAccess, Failure::DiskFull, or Failure::DeviceIo if the page
/// could not be painted.
void writeSheetPdf(const Document& document, QPageLayout::Orientation orientation, const QString& path);

/// The keys that the printer cannot print whole, as indexes into the layout's keys.
[[nodiscard]] std::vector<std::size_t> keysOutside(const KeyLayout& layout, const TargetPrinter& target);
/// True when no move helps, since the keys reach further across than the page.
[[nodiscard]] bool isWiderThanPage(const KeyLayout& layout, const TargetPrinter& target);
/// The target's correction with the smallest move that brings all keys inside the printable area, if the area
/// has room for them.
[[nodiscard]] std::optional<paper::PrinterCorrection> correctionToFit(const KeyLayout& layout,
                                                                      const TargetPrinter& target);

} // namespace norvane::overlay
