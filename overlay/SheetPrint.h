// The sheet on paper and in PDF files.
#pragma once

#include "overlay/Document.h"
#include "overlay/SheetOptions.h"
#include "paper/PrinterCorrection.h"
#include "paper/Sheet.h"

#include <QTransform>

class QPagedPaintDevice;
class QPainter;

namespace norvane::overlay
{

/// A printer as the sheet needs to know it; without a name a PDF file.
struct TargetPrinter {
    QString name;
    paper::Sheet sheet;
    paper::PrinterCorrection correction;
    SheetOptions options = {};
    QString caption = {}; ///< printed if the options say so
};

struct SheetPage;

/// Converts the sheet's millimetres, from the corner of the printable area, to those of the device, from the
/// paper's corner.
[[nodiscard]] QTransform placeOnPaper(const TargetPrinter& target);

/// Paints the keys of a page with their marks. @param painter in mm from the corner of the printable area.
void paintPage(QPainter& painter, const Document& document, const TargetPrinter& target,
               const SheetPage& page);

/// Prints @p document on @p device, a printer or a PDF, at true size, on the pages that the target needs.
/// @return false when the device failed.
[[nodiscard]] bool printSheet(const Document& document, QPagedPaintDevice& device,
                              const TargetPrinter& target);

/// Writes the sheet as a PDF file, as for a printer with the usual margins. An existing file is kept if it
/// cannot be written.
/// @throws RuntimeFailure with Failure::PathOrFileAccess, Failure::DiskFull, or Failure::DeviceIo if the page
/// could not be painted.
void writeSheetPdf(const Document& document, const TargetPrinter& target, const QString& path);

} // namespace norvane::overlay
