// See BlockPainter.h.
#include "reports/pages/BlockPainter.h"

#include "reports/pages/HeatMap.h"
#include "reports/pages/PageStyles.h"

#include <QPainter>

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

// Heights at scale 1.
constexpr double blockTitleHeight = 5.6;
constexpr double blockRowPitch = 3.9;
constexpr double figureHeight = 12.6;
constexpr double comparedHeight = 17; ///< of a figure with the other period below it
constexpr int comparedColumns = 4;
constexpr double cellGap = 2.2; ///< between the numbers of two columns
constexpr double titleSize = 3.3;
constexpr double smallestLetters = 0.6; ///< of a table with large numbers

/// "+4.2 %", or a dash where nothing can be divided by.
QString changeText(const ReportData& figure, int column)
{
    const QString change = figure.text(0, column);
    if (!std::holds_alternative<Decimal>(figure.cell(0, column)))
        return u"–"_s;
    return (change.startsWith(u'-') ? QString() : u"+"_s) + change + u" %"_s;
}

} // namespace

double BlockPainter::rowHeight() const
{
    return blockRowPitch * m_scale;
}

bool BlockPainter::hasHeadings() const
{
    const auto& columns = m_block.table.columns();
    return std::any_of(columns.begin() + 1, columns.end(),
                       [](const ReportColumn& column) { return !column.heading.isEmpty(); }) &&
           m_block.table.columnCount() > 1;
}

/// A block of one column is a text.
QStringList BlockPainter::rowsOfText(double width) const
{
    QStringList rows;
    for (qsizetype line = 0; line < m_block.table.lineCount(); ++line)
        rows += m_font.wrapped(m_block.table.text(line, 0), style(), width);
    return rows;
}

double BlockPainter::height(double width) const
{
    if (m_block.kind == BlockKind::Figure)
        return (m_block.table.columnCount() < comparedColumns ? figureHeight : comparedHeight) * m_scale;
    const auto rows = m_block.table.columnCount() == 1 ? rowsOfText(width).size()
                                                       : m_block.table.lineCount() + (hasHeadings() ? 1 : 0);
    return blockTitleHeight * m_scale + static_cast<double>(rows) * rowHeight();
}

QRectF BlockPainter::titleRect(const QRectF& place) const
{
    if (m_block.kind == BlockKind::Figure)
        return place;
    return {place.topLeft(), QSizeF(place.width(), blockTitleHeight * m_scale)};
}

QRectF BlockPainter::lineRect(const QRectF& place, qsizetype line) const
{
    const QRectF title = titleRect(place);
    if (m_block.kind == BlockKind::Figure)
        return place;
    if (m_block.table.columnCount() == 1 && line == 0)
        return {title.bottomLeft(), place.bottomRight()};
    const auto row = static_cast<double>(line + (hasHeadings() ? 1 : 0));
    return {title.left(), title.bottom() + row * rowHeight(), place.width(), rowHeight()};
}

void BlockPainter::paint(QPainter& painter, const QRectF& place) const
{
    if (m_block.kind == BlockKind::Figure)
        return paintFigure(painter, place);
    paintTitle(painter, place);
    if (m_block.table.columnCount() == 1)
        return paintText(painter, place);
    const bool isHeat = m_block.kind == BlockKind::HeatMap;
    const Columns columns = isHeat ? heatColumnsIn(place.width()) : columnsIn(place.width());
    if (hasHeadings())
        paintHeadings(painter, lineRect(place, -1), columns);
    if (isHeat)
        paintHeat(painter, place, columns);
    for (qsizetype line = 0; line < m_block.table.lineCount(); ++line)
        paintLine(painter, lineRect(place, line), columns, line);
}

/// The number, and below it that of the other period and the change in per cent.
void BlockPainter::paintFigure(QPainter& painter, const QRectF& place) const
{
    constexpr double numberSize = 5.6;
    const ReportData& table = m_block.table;
    painter.fillRect(place, ink::band);
    const double inner = 2 * m_scale;
    QRectF row = place.adjusted(inner, inner / 2, -inner, 0);
    const auto draw = [&](const QString& text, const TextStyle& style) {
        row.setHeight(style.size * headingPitch);
        m_font.draw(painter, row, text, style, Alignment::Left);
        row.moveTop(row.bottom());
    };
    draw(m_block.title, {textSize * m_scale, false, ink::pale});
    draw(table.text(0, 1), {numberSize * m_scale, true});
    if (table.columnCount() < comparedColumns)
        return;
    draw(u"%1  before %2"_s.arg(changeText(table, comparedColumns - 1), table.text(0, 2)), style());
}

void BlockPainter::paintTitle(QPainter& painter, const QRectF& place) const
{
    const QRectF title = titleRect(place);
    m_font.draw(painter, title, m_block.title, {titleSize * m_scale, true}, Alignment::Left);
    painter.fillRect(QRectF(title.left(), title.bottom() - thinLine, title.width(), thinLine), ink::rule);
}

void BlockPainter::paintText(QPainter& painter, const QRectF& place) const
{
    QRectF row(titleRect(place).bottomLeft(), QSizeF(place.width(), rowHeight()));
    for (const QString& text : rowsOfText(place.width())) {
        m_font.draw(painter, row, text, style(), Alignment::Left);
        row.moveTop(row.bottom());
    }
}

double BlockPainter::numberWidth(int column) const
{
    double width = m_font.width(m_block.table.columns()[static_cast<std::size_t>(column)].heading, style());
    for (qsizetype line = 0; line < m_block.table.lineCount(); ++line) {
        const bool isBold = m_block.table.lineKind(line) != LineKind::Detail;
        width = std::max(width, m_font.width(m_block.table.text(line, column), style(isBold)));
    }
    return width + cellGap * m_scale;
}

/// The widest name, or so much of it that a reader knows it.
double BlockPainter::nameWidth() const
{
    constexpr double enough = 24;
    double width = 0;
    for (qsizetype line = 0; line < m_block.table.lineCount(); ++line)
        width = std::max(width, m_font.width(m_block.table.text(line, 0), style()));
    return std::min(width, enough * m_scale);
}

/// Names take what the numbers leave. Large numbers are in smaller letters before no name is left.
BlockPainter::Columns BlockPainter::columnsIn(double width) const
{
    Columns columns;
    columns.widths.reserve(static_cast<std::size_t>(m_block.table.columnCount()));
    columns.widths.push_back(0);
    for (int column = 1; column < m_block.table.columnCount(); ++column)
        columns.widths.push_back(numberWidth(column));
    const double needed = std::accumulate(columns.widths.begin(), columns.widths.end(), nameWidth());
    columns.letters = std::clamp(width / needed, smallestLetters, 1.0);
    double left = width;
    columns.lefts.resize(columns.widths.size());
    for (std::size_t column = columns.widths.size(); column-- > 0;) {
        columns.widths[column] *= columns.letters;
        left -= columns.widths[column];
        columns.lefts[column] = left;
    }
    columns.widths.front() = std::max(0.0, left);
    columns.lefts.front() = 0;
    return columns;
}

/// The numbers are in columns of one width.
BlockPainter::Columns BlockPainter::heatColumnsIn(double width) const
{
    constexpr double nameParts = 1.5;
    const int count = m_block.table.columnCount();
    const double part = width / (count - 1 + nameParts);
    Columns columns;
    columns.lefts.reserve(static_cast<std::size_t>(count));
    columns.widths.reserve(static_cast<std::size_t>(count));
    columns.lefts.push_back(0);
    columns.widths.push_back(nameParts * part);
    for (int column = 1; column < count; ++column) {
        columns.lefts.push_back((nameParts + column - 1) * part);
        columns.widths.push_back(part);
        columns.letters = std::min(columns.letters, part / numberWidth(column));
    }
    columns.letters = std::max(columns.letters, smallestLetters);
    return columns;
}

QRectF BlockPainter::cellRect(const QRectF& row, const Columns& columns, int column)
{
    const auto place = static_cast<std::size_t>(column);
    return {row.left() + columns.lefts[place], row.top(), columns.widths[place], row.height()};
}

void BlockPainter::paintHeadings(QPainter& painter, const QRectF& row, const Columns& columns) const
{
    const TextStyle pale{textSize * m_scale * columns.letters, false, ink::pale};
    for (int column = 1; column < m_block.table.columnCount(); ++column) {
        const QRectF cell = cellRect(row, columns, column).adjusted(0, 0, -cellGap / 4 * m_scale, 0);
        m_font.draw(painter, cell, m_block.table.columns()[static_cast<std::size_t>(column)].heading, pale,
                    Alignment::Right);
    }
}

/// A name that is too long is cut with three dots.
void BlockPainter::paintLine(QPainter& painter, const QRectF& row, const Columns& columns,
                             qsizetype line) const
{
    const ReportData& table = m_block.table;
    const bool isTotal = table.lineKind(line) != LineKind::Detail;
    const TextStyle style{textSize * m_scale * columns.letters, isTotal};
    painter.fillRect(isTotal ? QRectF(row.left(), row.top(), row.width(), thinLine)
                             : QRectF(row.left(), row.bottom() - hairline, row.width(), hairline),
                     isTotal ? ink::rule : ink::line);
    for (int column = 0; column < table.columnCount(); ++column) {
        const QRectF cell = cellRect(row, columns, column).adjusted(0, 0, -cellGap / 4 * m_scale, 0);
        const QString text = table.text(line, column);
        m_font.draw(painter, cell, column == 0 ? m_font.elided(text, style, cell.width()) : text, style,
                    column == 0 ? Alignment::Left : Alignment::Right);
    }
}

void BlockPainter::paintHeat(QPainter& painter, const QRectF& place, const Columns& columns) const
{
    const ReportData& table = m_block.table;
    const double largest = largestHeat(table);
    for (qsizetype line = 0; line < table.lineCount(); ++line) {
        for (int column = 1; column < endOfHeat(table); ++column) {
            const ReportCell cell = table.cell(line, column);
            const auto* const number = std::get_if<Decimal>(&cell);
            if (number != nullptr && table.lineKind(line) == LineKind::Detail) {
                painter.fillRect(cellRect(lineRect(place, line), columns, column),
                                 heatColour(number->toDouble(), largest));
            }
        }
    }
}

} // namespace norvane::reports
