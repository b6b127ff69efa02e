// See ReportPages.h.
#include "reports/pages/ReportPages.h"

#include "paper/Sheet.h"
#include "reports/pages/ChartPainter.h"
#include "reports/pages/PageStyles.h"

#include <algorithm>
#include <ranges>

namespace norvane::reports
{
namespace
{

constexpr paper::Margins margins{paper::millimetres(14), paper::millimetres(12), paper::millimetres(14),
                                 paper::millimetres(12)};
constexpr double chartGap = 8;  ///< around charts, in mm
constexpr double blocksTop = 3; ///< between the heading and a summary's blocks

paper::Sheet sheetOf(bool isLandscape)
{
    return {isLandscape ? QPageLayout::Landscape : QPageLayout::Portrait, margins};
}

double headingRowHeight(const TextStyle& style)
{
    return style.size * headingPitch;
}

PageFrame makeFrame(const ReportData& report, const PageFont& font, const LineLayout& lines, bool isLandscape)
{
    PageFrame frame;
    const paper::Sheet sheet = sheetOf(isLandscape);
    const QRectF area = sheet.printableRect();
    frame.sheet = sheet.rect();
    frame.subtitleWidth = area.width() * 0.68;
    const auto rows = [&](const QString& words, const TextStyle& style) {
        return static_cast<double>(font.wrapped(words, style, frame.subtitleWidth).size());
    };
    const double left = rows(report.heading.title, titleStyle) * headingRowHeight(titleStyle) +
                        rows(report.heading.subtitle, subtitleStyle) * headingRowHeight(subtitleStyle);
    const double right = 3 * headingRowHeight(subtitleStyle);
    frame.heading = QRectF(area.topLeft(), QSizeF(area.width(), std::max(left, right) + 1.5));
    int columnRows = 1;
    for (const CellBox& heading : lines.headings())
        columnRows = std::max(columnRows, heading.firstRow + static_cast<int>(heading.rows.size()));
    frame.columnHeadings =
        QRectF(frame.heading.bottomLeft(),
               QSizeF(area.width(), columnRows * lines.rowHeight() + 2 * columnHeadingPadding));
    frame.body = area;
    frame.body.setTop(frame.columnHeadings.bottom() + 0.6);
    return frame;
}

/// Whether the line ends what is above it.
bool isEnd(LineKind kind)
{
    return kind == LineKind::Subtotal || kind == LineKind::GrandTotal || kind == LineKind::Remark;
}

ColumnPlaces columnsOn(bool isLandscape, const ReportData& report, const PageFont& font)
{
    const QRectF area = sheetOf(isLandscape).printableRect();
    return fitColumns(report, font, area.left(), area.width());
}

/// Turns the sheet, if the layout leaves that open, before columns continue in a second band.
SheetColumns sheetColumns(const ReportData& report, const PageFont& font)
{
    const bool isLandscape = report.page.isLandscape;
    SheetColumns upright{isLandscape, columnsOn(isLandscape, report, font)};
    if (isLandscape || !report.page.mayTurn || upright.places.bandCount() == 1)
        return upright;
    return {true, columnsOn(true, report, font)};
}

} // namespace

ReportPages::ReportPages(const ReportData& report, const PageFont& font, bool showsCharts)
    : ReportPages(report, font, showsCharts, sheetColumns(report, font))
{
}

ReportPages::ReportPages(const ReportData& report, const PageFont& font, bool showsCharts,
                         SheetColumns columns)
    : m_report(report), m_lines(report, font, std::move(columns.places)),
      m_charts(drawableCharts(showsCharts))
{
    m_frame = makeFrame(report, font, m_lines, columns.isLandscape);
    if (report.blocks.empty())
        return;
    m_frame.columnHeadings.setHeight(0);
    m_frame.body.setTop(m_frame.heading.bottom() + blocksTop);
    m_blocks.emplace(report, font, m_frame.body);
}

std::vector<std::size_t> ReportPages::drawableCharts(bool showsCharts) const
{
    std::vector<std::size_t> charts;
    for (std::size_t chart = m_report.charts.size(); showsCharts && chart-- > 0;) {
        if (!m_report.charts[chart].points.empty())
            charts.push_back(chart);
    }
    return charts;
}

bool ReportPages::isComplete() const
{
    return !m_pages.empty() && m_nextLine == m_report.lineCount() && m_charts.empty();
}

bool ReportPages::layOut(int pages)
{
    for (; pages > 0 && !isComplete(); --pages)
        layOutPage();
    return !isComplete();
}

void ReportPages::layOutAll()
{
    while (!isComplete())
        layOutPage();
}

void ReportPages::layOutPage()
{
    ReportPage page{m_nextLine, m_nextLine, {}, {}};
    if (m_blocks) {
        page.endLine = m_nextLine = m_report.lineCount();
        m_pages.push_back(std::move(page));
        return;
    }
    const bool hasLines = m_nextLine < m_report.lineCount();
    m_y = hasLines ? m_frame.body.top() : m_frame.columnHeadings.top() + chartGap;
    if (hasLines)
        addLines(page);
    if (m_nextLine == m_report.lineCount())
        addCharts(page);
    m_pages.push_back(std::move(page));
}

void ReportPages::addLines(ReportPage& page)
{
    if (m_group && m_report.lineKind(m_nextLine) != LineKind::GroupHeading) {
        page.continuedGroup = m_group;
        m_y += m_lines.height(*m_group);
    }
    while (m_nextLine < m_report.lineCount()) {
        const qsizetype end = blockEnd(m_nextLine);
        if (page.hasLines() && m_y + height(m_nextLine, end) > m_frame.body.bottom())
            return;
        addBlock(page, end);
    }
}

/// A block that is higher than a page is broken between its lines.
void ReportPages::addBlock(ReportPage& page, qsizetype end)
{
    while (m_nextLine < end) {
        if (page.hasLines() && m_y + m_lines.height(m_nextLine) > m_frame.body.bottom())
            return;
        takeLine(page);
    }
}

void ReportPages::takeLine(ReportPage& page)
{
    const LineKind kind = m_report.lineKind(m_nextLine);
    if (kind == LineKind::GroupHeading) {
        m_group = m_nextLine;
    } else if (isEnd(kind)) {
        m_group.reset();
    }
    m_y += m_lines.height(m_nextLine);
    page.endLine = ++m_nextLine;
}

void ReportPages::addCharts(ReportPage& page)
{
    while (!m_charts.empty()) {
        const bool isFirst = !page.hasLines() && page.charts.empty();
        const double gap = isFirst ? 0 : chartGap;
        const double space = m_frame.body.bottom() - m_y - gap;
        const std::size_t count = std::min(m_charts.size(), chartsInRow());
        const double width =
            (m_frame.body.width() - static_cast<double>(count - 1) * chartGap) / static_cast<double>(count);
        const double wanted = rowHeight(count, width);
        if (wanted > space && !isFirst)
            return;
        QRectF place(m_frame.body.left(), m_y + gap, width, std::min(wanted, space));
        m_y = place.bottom();
        for (std::size_t chart = 0; chart < count; ++chart) {
            page.charts.push_back({m_charts.back(), place});
            place.translate(width + chartGap, 0);
            m_charts.pop_back();
        }
    }
}

/// One below the other, two charts would need two landscape sheets.
std::size_t ReportPages::chartsInRow() const
{
    return m_frame.isLandscape() ? 2 : 1;
}

/// The height of the next @p count charts side by side.
double ReportPages::rowHeight(std::size_t count, double width) const
{
    double height = 0;
    for (std::size_t chart = m_charts.size() - count; chart < m_charts.size(); ++chart)
        height = std::max(height, chartHeight(m_report.charts[m_charts[chart]], width));
    return height;
}

/// The end of the block that begins at @p line and should be kept on one page: a heading with the first line
/// below it, and any line with the totals and remarks that follow it.
qsizetype ReportPages::blockEnd(qsizetype line) const
{
    const qsizetype end = m_report.lineCount();
    while (line + 1 < end && m_report.lineKind(line) == LineKind::GroupHeading)
        ++line;
    do {
        ++line;
    } while (line < end && isEnd(m_report.lineKind(line)));
    return line;
}

double ReportPages::height(qsizetype first, qsizetype end) const
{
    double sum = 0;
    for (; first < end; ++first)
        sum += m_lines.height(first);
    return sum;
}

std::vector<PlacedLine> ReportPages::placedLines(int index) const
{
    if (m_blocks)
        return m_blocks->lines();
    std::vector<PlacedLine> placed;
    QPointF corner = m_frame.body.topLeft();
    const auto place = [&](qsizetype line, bool isContinued) {
        placed.push_back(
            {line, QRectF(corner, QSizeF(m_frame.body.width(), m_lines.height(line))), isContinued});
        corner = placed.back().place.bottomLeft();
    };
    const ReportPage& shown = page(index);
    if (shown.continuedGroup)
        place(*shown.continuedGroup, true);
    for (qsizetype line = shown.firstLine; line < shown.endLine; ++line)
        place(line, false);
    return placed;
}

std::optional<int> ReportPages::pageOfLine(qsizetype line) const
{
    const auto found = std::ranges::upper_bound(m_pages, line, {}, &ReportPage::endLine);
    if (found == m_pages.end() || line < found->firstLine)
        return std::nullopt;
    return static_cast<int>(found - m_pages.begin());
}

} // namespace norvane::reports
