// See SheetPrint.h.
#include "overlay/SheetPrint.h"

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

bool printSheet(const Document& document, QPagedPaintDevice& device, const TargetPrinter& target)
{
    paper::PageDevice paper(device, QPageSize(QPageSize::A4), target.sheet.orientation);
    QPainter& painter = paper.nextPage();
    painter.setTransform(placeOnPaper(target), true);
    SheetPainter(painter, document).paint();
    return paper.finish();
}

void writeSheetPdf(const Document& document, QPageLayout::Orientation orientation, const QString& path)
{
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    QPdfWriter writer(&content);
    writer.setTitle(QFileInfo(path).completeBaseName());
    if (!printSheet(document, writer, {QString(), {orientation}, {}})) {
        throw RuntimeFailure(Failure::DeviceIo,
                             QStringLiteral("The page could not be painted: %1").arg(path));
    }
    writeWholeFile(path, content.data());
}

} // namespace norvane::overlay
