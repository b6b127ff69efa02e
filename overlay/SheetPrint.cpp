// See SheetPrint.h.
#include "overlay/SheetPrint.h"

#include "overlay/SheetMarks.h"
#include "overlay/SheetPainter.h"
#include "paper/PageDevice.h"
#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPdfWriter>

namespace norvane::overlay
{

QTransform placeOnPaper(const TargetPrinter& target)
{
    QTransform place = target.correction.transform();
    place.translate(target.sheet.margins.left.inMillimetres(), target.sheet.margins.top.inMillimetres());
    return place;
}

void paintPage(QPainter& painter, const Document& document, const TargetPrinter& target,
               const SheetPage& page)
{
    painter.save();
    painter.translate(page.moved, 0);
    SheetPainter(painter, document).paint([&page](const OverlayKey& key) { return page.has(key); });
    paintMarks(painter, document.layout(), target, page);
    painter.restore();
}

bool printSheet(const Document& document, QPagedPaintDevice& device, const TargetPrinter& target)
{
    paper::PageDevice paper(device, pageSizeOf(target.sheet.format), target.sheet.orientation);
    for (const SheetPage& page : pagesOf(document.layout(), target)) {
        QPainter& painter = paper.nextPage();
        painter.save();
        painter.setTransform(placeOnPaper(target), true);
        paintPage(painter, document, target, page);
        painter.restore();
    }
    return paper.finish();
}

void writeSheetPdf(const Document& document, const TargetPrinter& target, const QString& path)
{
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    QPdfWriter writer(&content);
    writer.setTitle(QFileInfo(path).completeBaseName());
    if (!printSheet(document, writer, target)) {
        throw RuntimeFailure(Failure::DeviceIo,
                             QStringLiteral("The page could not be painted: %1").arg(path));
    }
    writeWholeFile(path, content.data());
}

} // namespace norvane::overlay
