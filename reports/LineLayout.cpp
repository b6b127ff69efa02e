// See LineLayout.h.
#include "reports/LineLayout.h"

#include <algorithm>

namespace norvane::reports
{
namespace
{

constexpr double rowPitch = 1.35;    ///< height of a row as a multiple of the letters' size
constexpr double linePadding = 0.35; ///< above and below the text of a line, in mm
constexpr double headingLead = 1.6;  ///< more space above the heading of a group, in mm

} // namespace

LineLayout::LineLayout(const ReportData& report, const PageText& text, ColumnPlaces places)
    : m_report(report), m_text(text), m_places(std::move(places))
{
}

TextStyle LineLayout::style(qsizetype line) const
{
    return {m_places.textSize, m_report.lineKind(line) != LineKind::Detail};
}

double LineLayout::rowHeight() const
{
    return m_places.textSize * rowPitch;
}

double LineLayout::lead(qsizetype line) const
{
    return linePadding + (m_report.lineKind(line) == LineKind::GroupHeading ? headingLead : 0);
}

double LineLayout::height(qsizetype line) const
{
    return lead(line) + rowCount(line) * rowHeight() + linePadding;
}

/// The column that the text of @p column may begin in.
int LineLayout::firstColumn(qsizetype line, int column) const
{
    const bool isDetail = m_report.lineKind(line) == LineKind::Detail;
    while (!isDetail && column > 0 && m_report.cell(line, column - 1) == Cell())
        --column;
    return column;
}

/// The column that the text of @p column may run to.
int LineLayout::lastColumn(qsizetype line, int column) const
{
    const LineKind kind = m_report.lineKind(line);
    const int end = m_report.columnCount() - 1;
    if (kind == LineKind::GroupHeading)
        return end;
    while (kind != LineKind::Detail && column < end && m_report.cell(line, column + 1) == Cell())
        ++column;
    return column;
}

ColumnPlace LineLayout::textPlace(qsizetype line, int column) const
{
    const ColumnPlace& first = m_places.columns[static_cast<std::size_t>(firstColumn(line, column))];
    const ColumnPlace& last = m_places.columns[static_cast<std::size_t>(lastColumn(line, column))];
    return {first.left + cellMargin, last.right() - first.left - 2 * cellMargin};
}

/// Only texts take several rows, so numbers need not be measured.
int LineLayout::rowCount(qsizetype line) const
{
    qsizetype rows = 1;
    for (int column = 0; column < m_report.columnCount(); ++column) {
        const Cell cell = m_report.cell(line, column);
        const auto* const text = std::get_if<QString>(&cell);
        if (text && !text->isEmpty())
            rows = std::max(rows, m_text.wrapped(*text, style(line), textPlace(line, column).width).size());
    }
    return static_cast<int>(rows);
}

CellBox LineLayout::cellBox(qsizetype line, int column) const
{
    const ReportColumn& shown = m_report.columns()[static_cast<std::size_t>(column)];
    const QString text = m_report.text(line, column);
    const ColumnPlace place = textPlace(line, column);
    if (!std::holds_alternative<QString>(m_report.cell(line, column)))
        return {place, {text}, shown.alignment};
    const bool isLabel = lastColumn(line, column) > firstColumn(line, column);
    return {place, m_text.wrapped(text, style(line), place.width),
            isLabel ? Alignment::Left : shown.alignment};
}

std::vector<CellBox> LineLayout::cells(qsizetype line) const
{
    std::vector<CellBox> boxes;
    for (int column = 0; column < m_report.columnCount(); ++column) {
        if (m_report.cell(line, column) != Cell())
            boxes.push_back(cellBox(line, column));
    }
    return boxes;
}

} // namespace norvane::reports
