// See SheetMarks.h.
#include "overlay/SheetMarks.h"

#include "paper/UnroundedFont.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

/// In millimetres.
constexpr double fineLine = 0.1;
constexpr double halfGap = 0.5; ///< between keys
constexpr double markGap = 1;   ///< from the edge to a crop mark
constexpr double markLength = 4;
constexpr double letterSize = 2.4;
constexpr double captionGap = 1.2;

class Marks
{
public:
    Marks(QPainter& painter, const OverlayLayout& layout, const SheetPage& page)
        : m_painter(painter), m_layout(layout), m_page(page)
    {
        for (const OverlayKey& key : layout.keys()) {
            if (page.has(key))
                m_edge |= key.outline();
        }
        m_edge.adjust(-halfGap, -halfGap, halfGap, halfGap);
        painter.setPen(QPen(Qt::black, fineLine));
        painter.setBrush(Qt::NoBrush);
    }

    void outlineKeys()
    {
        for (const OverlayKey& key : m_layout.keys()) {
            if (m_page.has(key))
                m_painter.drawRect(key.outline());
        }
    }

    /// The second page of two ends at the dashed line, which must be seen as such.
    void drawEdge()
    {
        const QPolygonF ends(
            {m_edge.topLeft(), m_edge.topRight(), m_edge.bottomRight(), m_edge.bottomLeft()});
        if (m_page.isCutLeft) {
            m_painter.drawPolyline(ends);
        } else {
            m_painter.drawPolygon(ends);
        }
    }

    void cropCorners()
    {
        for (const double x : {m_edge.left(), m_edge.right()}) {
            for (const double y : {m_edge.top(), m_edge.bottom()})
                cropCorner(x, y);
        }
    }

    void drawCaption(const QString& caption) { write(m_edge.left() + captionGap, Qt::AlignLeft, caption); }

    /// A dashed line in the gap before the column that both pages have.
    void drawOverlap()
    {
        const double x =
            columnLeft(m_layout, m_page.isCutLeft ? m_page.firstColumn : m_page.lastColumn) - halfGap;
        const double below = m_edge.bottom() + markGap + markLength;
        QPen pen(Qt::black, fineLine);
        pen.setDashPattern({20, 10});
        m_painter.setPen(pen);
        m_painter.drawLine(QPointF(x, m_edge.top()), QPointF(x, below));
        if (m_page.isCutLeft) {
            write(x + captionGap, Qt::AlignLeft, u"Page 2 of 2: cut here"_s);
        } else {
            write(x - captionGap, Qt::AlignRight, u"Page 1 of 2: page 2 begins here"_s);
        }
    }

private:
    void cropCorner(double x, double y)
    {
        const double across = x == m_edge.left() ? -1 : 1;
        const double down = y == m_edge.top() ? -1 : 1;
        m_painter.drawLine(QPointF(x + across * markGap, y), QPointF(x + across * (markGap + markLength), y));
        m_painter.drawLine(QPointF(x, y + down * markGap), QPointF(x, y + down * (markGap + markLength)));
    }

    /// Below the sheet. Between two columns at most, or a crop mark would run through it.
    void write(double x, Qt::AlignmentFlag side, const QString& text)
    {
        m_painter.save();
        m_painter.translate(x, m_edge.bottom() + captionGap);
        m_painter.scale(letterSize / paper::unitsPerSquare, letterSize / paper::unitsPerSquare);
        m_painter.setFont(paper::unrounded(QFont(u"Arial"_s)));
        m_painter.setPen(Qt::black);
        const double width = side == Qt::AlignRight ? m_painter.fontMetrics().horizontalAdvance(text) : 0;
        m_painter.drawText(QPointF(-width, paper::unitsPerSquare), text);
        m_painter.restore();
    }

    QPainter& m_painter;
    const OverlayLayout& m_layout;
    const SheetPage& m_page;
    QRectF m_edge; ///< of the sheet, as it is cut
};

} // namespace

void paintMarks(QPainter& painter, const OverlayLayout& layout, const TargetPrinter& target,
                const SheetPage& page)
{
    Marks marks(painter, layout, page);
    const SheetOptions& options = target.options;
    if (options.hasKeyOutlines)
        marks.outlineKeys();
    if (options.hasSheetEdge)
        marks.drawEdge();
    if (options.hasCropMarks)
        marks.cropCorners();
    if (options.hasCaption && !page.isCutLeft)
        marks.drawCaption(target.caption);
    if (page.isCutLeft || page.isCutRight)
        marks.drawOverlap();
}

} // namespace norvane::overlay
