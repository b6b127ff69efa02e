// See LineLayout.h.
#include "reports/pages/LineLayout.h"

#include <algorithm>

namespace norvane::reports
{
namespace
{

constexpr double rowPitch = 1.35;    ///< height of a row as a multiple of the letters' size
constexpr double linePadding = 0.35; ///< above and below the text of a line, in mm
constexpr double headingLead = 1.6;  ///< more space above the heading of a group or a remark, in mm

/// From the rows of each band to the row that it begins in, and the end of the last one.
std::vector<int> topsOf(const std::vector<int>& rows)
{
    std::vector<int> tops{0};
    for (const int own : rows)
        tops.push_back(tops.back() + own);
    return tops;
}

} // namespace

LineLayout::LineLayout(const ReportData& report, const PageFont& font, ColumnPlaces places)
    : m_report(report), m_font(font), m_places(std::move(places))
{
}

TextStyle LineLayout::style(qsizetype line) const
{
    return {m_places.textSize, isBold(m_report.lineKind(line))};
}

double LineLayout::rowHeight() const
{
    return m_places.textSize * rowPitch;
}

double LineLayout::lead(qsizetype line) const
{
    return linePadding + (isText(m_report.lineKind(line)) ? headingLead : 0);
}

double LineLayout::height(qsizetype line) const
{
    return lead(line) + bandTops(line).back() * rowHeight() + linePadding;
}

bool LineLayout::isSameBand(int column, int other) const
{
    const auto band = [this](int one) {
        return m_places.columns[static_cast<std::size_t>(one)].band;
    };
    return band(column) == band(other);
}

/// The column that the text of @p column may begin in.
int LineLayout::firstColumn(qsizetype line, int column) const
{
    const bool isDetail = m_report.lineKind(line) == LineKind::Detail;
    while (!isDetail && column > 0 && isSameBand(column, column - 1) &&
           m_report.cell(line, column - 1) == ReportCell())
        --column;
    return column;
}

/// The first column names the line, whatever it holds.
bool LineLayout::isOfNumbers(int column) const
{
    return column > 0 && m_report.columns()[static_cast<std::size_t>(column)].kind == ColumnKind::Number;
}

/// The column that the text of @p column may run to. A number remains under its heading, and so does the dash
/// in place of one.
int LineLayout::lastColumn(qsizetype line, int column) const
{
    const bool isLabel = m_report.lineKind(line) != LineKind::Detail && !isOfNumbers(column) &&
                         std::holds_alternative<QString>(m_report.cell(line, column));
    const int end = m_report.columnCount() - 1;
    while (isLabel && column < end && isSameBand(column, column + 1) &&
           m_report.cell(line, column + 1) == ReportCell())
        ++column;
    return column;
}

ColumnPlace LineLayout::textPlace(qsizetype line, int column) const
{
    const ColumnPlace& first = m_places.columns[static_cast<std::size_t>(firstColumn(line, column))];
    const ColumnPlace& last = m_places.columns[static_cast<std::size_t>(lastColumn(line, column))];
    return {first.left + cellMargin, last.right() - first.left - 2 * cellMargin, first.band};
}

/// Only texts take several rows, so numbers need not be measured.
qsizetype LineLayout::rowsOfCell(qsizetype line, int column) const
{
    const ReportCell cell = m_report.cell(line, column);
    if (cell == ReportCell())
        return 0;
    const auto* const text = std::get_if<QString>(&cell);
    return text ? m_font.wrapped(*text, style(line), textPlace(line, column).width).size() : 1;
}

/// The first row of each band, and the end of the last one. The first band has one row at least.
std::vector<int> LineLayout::bandTops(qsizetype line) const
{
    std::vector<int> rows(static_cast<std::size_t>(m_places.bandCount()));
    rows.front() = 1;
    for (int column = 0; column < m_report.columnCount(); ++column) {
        int& own = rows[static_cast<std::size_t>(m_places.columns[static_cast<std::size_t>(column)].band)];
        own = std::max(own, static_cast<int>(rowsOfCell(line, column)));
    }
    return topsOf(rows);
}

std::vector<CellBox> LineLayout::headings() const
{
    const TextStyle bold{m_places.textSize, true};
    std::vector<CellBox> boxes;
    std::vector<int> rows(static_cast<std::size_t>(m_places.bandCount()));
    for (std::size_t column = 0; column < m_places.columns.size(); ++column) {
        const ReportColumn& shown = m_report.columns()[column];
        ColumnPlace place = m_places.columns[column];
        place.left += cellMargin;
        place.width -= 2 * cellMargin;
        boxes.push_back({place, m_font.wrappedWords(shown.heading, bold, place.width), shown.alignment});
        int& own = rows[static_cast<std::size_t>(place.band)];
        own = std::max(own, static_cast<int>(boxes.back().rows.size()));
    }
    const std::vector<int> tops = topsOf(rows);
    for (CellBox& box : boxes)
        box.firstRow = tops[static_cast<std::size_t>(box.place.band) + 1] - static_cast<int>(box.rows.size());
    return boxes;
}

CellBox LineLayout::cellBox(qsizetype line, int column) const
{
    const ReportColumn& shown = m_report.columns()[static_cast<std::size_t>(column)];
    const QString text = m_report.text(line, column);
    const ColumnPlace place = textPlace(line, column);
    if (!std::holds_alternative<QString>(m_report.cell(line, column)))
        return {place, {text}, shown.alignment};
    const bool isLabel = !isOfNumbers(column) && lastColumn(line, column) > firstColumn(line, column);
    return {place, m_font.wrapped(text, style(line), place.width),
            isLabel ? Alignment::Left : shown.alignment};
}

std::vector<CellBox> LineLayout::cells(qsizetype line) const
{
    const std::vector<int> tops = bandTops(line);
    std::vector<CellBox> boxes;
    for (int column = 0; column < m_report.columnCount(); ++column) {
        if (m_report.cell(line, column) == ReportCell())
            continue;
        boxes.push_back(cellBox(line, column));
        boxes.back().firstRow = tops[static_cast<std::size_t>(boxes.back().place.band)];
    }
    return boxes;
}

} // namespace norvane::reports
