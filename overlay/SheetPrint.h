// The sheet on paper and in PDF files.
#pragma once

#include "overlay/Document.h"
#include "paper/PrinterCorrection.h"
#include "paper/Sheet.h"

#include <QTransform>

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

/// Writes the sheet as a PDF file, its printable area 5 mm inside the page. An existing file is kept if it
/// cannot be written.
/// @throws RuntimeFailure with Failure::PathOrFileAccess, Failure::DiskFull, or Failure::DeviceIo if the page
/// could not be painted.
void writeSheetPdf(const Document& document, QPageLayout::Orientation orientation, const QString& path);

} // namespace norvane::overlay
