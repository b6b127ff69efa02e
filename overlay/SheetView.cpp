// See SheetView.h.
#include "overlay/SheetView.h"

#include "overlay/Ruler.h"
#include "overlay/SheetFit.h"
#include "overlay/SheetPainter.h"
#include "ui/Appearance.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

using paper::Zoom;

constexpr int gap = 10; ///< around the sheet, in pixels
/// In pixels to the millimetre.
constexpr double smallestSheetScale = 0.5;
constexpr double zoomStep = 1.25;

} // namespace

SheetView::SheetView(const Document& document, QWidget* parent)
    : ZoomedView(Zoom::FitPage, smallestSheetScale, parent), m_document(document)
{
    viewport()->setCursor(Qt::OpenHandCursor);
    setZoom(Zoom::FitPage);
}

void SheetView::setTarget(const TargetPrinter& target)
{
    m_target = target;
    m_outside = keysOutside(m_document.layout(), target);
    m_pages = pagesOf(m_document.layout(), target);
    m_page = std::min(m_page, pageCount() - 1);
    updateScale();
}

void SheetView::showPage(int page)
{
    m_page = page;
    viewport()->update();
}

void SheetView::setZoom(Zoom zoom)
{
    // Bars that come and go would change the room that the sheet is fitted in.
    setHorizontalScrollBarPolicy(zoom == Zoom::FitPage || zoom == Zoom::FitWidth ? Qt::ScrollBarAlwaysOff
                                                                                 : Qt::ScrollBarAlwaysOn);
    setVerticalScrollBarPolicy(zoom == Zoom::FitPage ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAlwaysOn);
    ZoomedView::setZoom(zoom);
}

QSizeF SheetView::surroundings() const
{
    return {rulerWidth + 2 * gap, rulerWidth + 2 * gap};
}

QSizeF SheetView::contentsSize() const
{
    return sheetSize() * pixelsPerMillimetre() + surroundings();
}

/// In whole pixels of the viewport, so that scrolling moves the picture as it is.
QPointF SheetView::sheetCorner() const
{
    const double free =
        (viewport()->width() - rulerWidth - m_target.sheet.rect().width() * pixelsPerMillimetre()) / 2;
    return {rulerWidth + std::floor(qMax<double>(gap, free)) - horizontalScrollBar()->value(),
            static_cast<double>(rulerWidth + gap - verticalScrollBar()->value())};
}

/// Where the keys begin, in millimetres from the paper's corner.
QPointF SheetView::keysCorner() const
{
    return {(m_target.sheet.margins.left + m_target.correction.across.offset).inMillimetres(),
            (m_target.sheet.margins.top + m_target.correction.down.offset).inMillimetres()};
}

QPointF SheetView::toViewport(QPointF place) const
{
    return sheetCorner() + place * pixelsPerMillimetre();
}

void SheetView::zoomBy(double factor, QPointF fixed)
{
    const QPointF place = (fixed - sheetCorner()) / pixelsPerMillimetre();
    setPixelsPerMillimetre(pixelsPerMillimetre() * factor);
    const QPointF moved = toViewport(place) - fixed;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(moved.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(moved.y()));
    Q_EMIT zoomedFreely();
}

void SheetView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), ui::colours::desktop());
    painter.save();
    painter.translate(sheetCorner());
    painter.scale(pixelsPerMillimetre(), pixelsPerMillimetre());
    paintSheet(painter);
    paintOutside(painter);
    painter.restore();
    paintRulers(painter, viewport()->size(), sheetCorner(), pixelsPerMillimetre());
}

/// The correction's stretch compensates for the printer's error: on the paper it is not seen.
void SheetView::paintSheet(QPainter& painter) const
{
    const QRectF sheet = m_target.sheet.rect();
    painter.fillRect(sheet, Qt::white);
    painter.save();
    painter.setClipRect(sheet);
    painter.translate(keysCorner());
    painter.setRenderHint(QPainter::Antialiasing);
    paintPage(painter, m_document, m_target, shownPage());
    painter.restore();
    QPen pen(ui::colours::greyedText, 0, Qt::DashLine);
    painter.setPen(pen);
    painter.drawRect(m_target.sheet.printableRect());
}

void SheetView::paintOutside(QPainter& painter) const
{
    painter.translate(keysCorner() + QPointF(shownPage().moved, 0));
    QColor colour = ui::colours::warning;
    painter.setPen(QPen(colour, 0.5));
    colour.setAlphaF(0.15F);
    painter.setBrush(colour);
    for (const std::size_t index : m_outside) {
        const OverlayKey& key = m_document.layout().keys()[index];
        if (shownPage().has(key))
            painter.drawRect(key.outline());
    }
}

int SheetView::spokenItemCount() const
{
    return static_cast<int>(m_document.layout().keys().size());
}

ui::SpokenItem SheetView::spokenItem(int index) const
{
    const OverlayKey& key = m_document.layout().keys()[static_cast<std::size_t>(index)];
    QStringList lines;
    for (int cell = key.firstCell; cell <= key.lastCell(); ++cell)
        lines += printedText(m_document, cell).trimmed();
    lines.removeAll(QString());
    QString state = u"Column %1, key %2"_s.arg(key.column + 1).arg(key.row + 1);
    if (std::ranges::find(m_outside, static_cast<std::size_t>(index)) != m_outside.end())
        state += u", leaves the printable area"_s;
    const QRectF place = key.outline().translated(keysCorner() + QPointF(shownPage().moved, 0));
    return {lines.join(u' '), state,
            QRectF(toViewport(place.topLeft()), place.size() * pixelsPerMillimetre()).toAlignedRect()};
}

void SheetView::wheelEvent(QWheelEvent* event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        ZoomedView::wheelEvent(event);
        return;
    }
    constexpr double notch = 120;
    zoomBy(std::pow(zoomStep, event->angleDelta().y() / notch), event->position());
    event->accept();
}

void SheetView::keyPressEvent(QKeyEvent* event)
{
    const QPointF middle = QRectF(viewport()->rect()).center();
    if (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Equal) {
        zoomBy(zoomStep, middle);
    } else if (event->key() == Qt::Key_Minus) {
        zoomBy(1 / zoomStep, middle);
    } else {
        ZoomedView::keyPressEvent(event);
    }
}

void SheetView::mousePressEvent(QMouseEvent* event)
{
    m_dragged = event->pos();
}

void SheetView::mouseMoveEvent(QMouseEvent* event)
{
    if (!event->buttons().testFlag(Qt::LeftButton))
        return;
    const QPoint way = event->pos() - m_dragged;
    m_dragged = event->pos();
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - way.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - way.y());
}

} // namespace norvane::overlay
