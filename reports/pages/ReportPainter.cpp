// See ReportPainter.h.
#include "reports/pages/ReportPainter.h"

#include "platform/ShownTime.h"
#include "reports/pages/ChartPainter.h"
#include "reports/pages/PageStyles.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

void drawRule(QPainter& painter, const QRectF& area, double y, double width, const QColor& colour)
{
    painter.fillRect(QRectF(area.left(), y - width / 2, area.width(), width), colour);
}

/// Paints what sets a line off from its neighbours: a band or rules.
void paintBackground(QPainter& painter, const QRectF& place, LineKind kind)
{
    switch (kind) {
    case LineKind::GroupHeading:
        painter.fillRect(place.adjusted(0, 1.2, 0, 0), ink::band);
        break;
    case LineKind::Detail:
        drawRule(painter, place, place.bottom(), hairline, ink::line);
        break;
    case LineKind::Remark:
        break;
    case LineKind::Subtotal:
        drawRule(painter, place, place.top(), thinLine, ink::rule);
        break;
    case LineKind::GrandTotal:
        painter.fillRect(place, ink::band);
        drawRule(painter, place, place.top(), thickLine, ink::rule);
        drawRule(painter, place, place.bottom(), thickLine, ink::rule);
        break;
    }
}

} // namespace

ReportPainter::ReportPainter(const ReportData& report, const ReportPages& pages, const PageFont& font)
    : m_report(report), m_pages(pages), m_font(font)
{
}

void ReportPainter::paint(QPainter& painter, int index) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    const ReportPage& page = m_pages.page(index);
    paintHeading(painter, index);
    if (const auto& blocks = m_pages.blocks())
        return blocks->paint(painter);
    if (page.hasLines())
        paintColumnHeadings(painter);
    for (const PlacedLine& line : m_pages.placedLines(index))
        paintLine(painter, line);
    for (const PlacedChart& chart : page.charts)
        paintChart(painter, chart.place, m_report.charts[chart.chart], m_font);
    if (m_report.lineCount() == 0 && index == 0)
        paintNotice(painter);
}

void ReportPainter::paintHeading(QPainter& painter, int index) const
{
    const PageFrame& frame = m_pages.frame();
    const ReportHeading& heading = m_report.heading;
    QRectF row(frame.heading.topLeft(), QSizeF(frame.subtitleWidth, 0));
    paintHeadingRows(painter, m_font.wrapped(heading.title, titleStyle, row.width()), titleStyle, row);
    paintHeadingRows(painter, m_font.wrapped(heading.subtitle, subtitleStyle, row.width()), subtitleStyle,
                     row);
    paintOrigin(painter, index);
    drawRule(painter, frame.heading, frame.heading.bottom(), thickLine, ink::rule);
}

/// @param row moves down below the painted rows.
void ReportPainter::paintHeadingRows(QPainter& painter, const QStringList& rows, const TextStyle& style,
                                     QRectF& row) const
{
    for (const QString& text : rows) {
        row.setHeight(style.size * headingPitch);
        m_font.draw(painter, row, text, style, Alignment::Left);
        row.moveTop(row.bottom());
    }
}

/// Paints the customer's name, the time of printing and the number of the page.
void ReportPainter::paintOrigin(QPainter& painter, int index) const
{
    QString number = u"Page %1"_s.arg(index + 1);
    if (m_pages.isComplete())
        number += u" of %1"_s.arg(m_pages.pageCount());
    const QString printed = u"Printed "_s + shownTime(m_report.heading.printed);
    const QRectF& heading = m_pages.frame().heading;
    QRectF row(heading.left() + m_pages.frame().subtitleWidth, heading.top(),
               heading.width() - m_pages.frame().subtitleWidth, subtitleStyle.size * headingPitch);
    m_font.draw(painter, row, m_report.heading.customer, subtitleBoldStyle, Alignment::Right);
    row.moveTop(row.bottom());
    m_font.draw(painter, row, printed, subtitleStyle, Alignment::Right);
    row.moveTop(row.bottom());
    m_font.draw(painter, row, number, subtitleStyle, Alignment::Right);
}

/// Headings are aligned to the rule below them, so that short ones are near their figures too.
void ReportPainter::paintColumnHeadings(QPainter& painter) const
{
    const LineLayout& lines = m_pages.lines();
    const QRectF& area = m_pages.frame().columnHeadings;
    const TextStyle style{lines.places().textSize, true};
    for (const CellBox& heading : lines.headings()) {
        QRectF row(heading.place.left,
                   area.top() + columnHeadingPadding + heading.firstRow * lines.rowHeight(),
                   heading.place.width, lines.rowHeight());
        for (const QString& text : heading.rows) {
            m_font.draw(painter, row, text, style, heading.alignment);
            row.moveTop(row.bottom());
        }
    }
    drawRule(painter, area, area.bottom(), thinLine, ink::rule);
}

void ReportPainter::paintLine(QPainter& painter, const PlacedLine& line) const
{
    paintBackground(painter, line.place, m_report.lineKind(line.line));
    for (const CellBox& cell : m_pages.lines().cells(line.line))
        paintCell(painter, line, cell);
}

void ReportPainter::paintCell(QPainter& painter, const PlacedLine& line, const CellBox& cell) const
{
    const LineLayout& lines = m_pages.lines();
    QRectF row(cell.place.left, line.place.top() + lines.lead(line.line) + cell.firstRow * lines.rowHeight(),
               cell.place.width, lines.rowHeight());
    for (const QString& text : cell.rows) {
        const QString shown = line.isContinued ? text + u" (continued)"_s : text;
        m_font.draw(painter, row, shown, lines.style(line.line), cell.alignment);
        row.moveTop(row.bottom());
    }
}

void ReportPainter::paintNotice(QPainter& painter) const
{
    const PageFrame& frame = m_pages.frame();
    QRectF row(frame.body.left(), frame.body.top() + frame.body.height() / 5, frame.body.width(),
               noticeStyle.size * headingPitch);
    for (const QString& text : m_font.wrapped(m_report.heading.notice, noticeStyle, row.width())) {
        m_font.draw(painter, row, text, noticeStyle, Alignment::Centre);
        row.moveTop(row.bottom());
    }
}

} // namespace norvane::reports
