// A report broken into pages. All lengths are in millimetres from the sheet's upper left corner.
#pragma once

#include "reports/pages/BlockPage.h"
#include "reports/pages/LineLayout.h"
#include "reports/pages/PlacedLine.h"

#include <QRectF>

#include <optional>
#include <vector>

namespace norvane::reports
{

/// A chart and its place on a page.
struct PlacedChart {
    std::size_t chart = 0; ///< counts the report's charts from 0
    QRectF place;
};

/// The part of a page between its heading and its foot.
struct ReportPage {
    qsizetype firstLine = 0;
    qsizetype endLine = 0;                   ///< the line after the last one
    std::optional<qsizetype> continuedGroup; ///< heading line of a group that began on an earlier page
    std::vector<PlacedChart> charts;
    [[nodiscard]] bool hasLines() const { return endLine > firstLine; }
};

/// The places that all pages share, in mm as all lengths here.
struct PageFrame {
    QRectF sheet;
    QRectF heading;
    QRectF columnHeadings;
    QRectF body;              ///< room for lines, below the column headings
    double subtitleWidth = 0; ///< of title and subtitle, which break into rows

    [[nodiscard]] bool isLandscape() const { return sheet.width() > sheet.height(); }
};

/// The columns, and the sheet that they were fitted to.
struct SheetColumns {
    bool isLandscape = false;
    ColumnPlaces places;
};

/// Lays out a few pages at a time, so that the first can be shown while the rest is laid out. Lines never
/// split; a group's heading is kept with its first line, and a total with the line above it. Charts are below
/// the last line if there is room, otherwise on separate pages; on landscape sheets two side by side.
class ReportPages
{
public:
    /// @p report and @p font must outlive this.
    ReportPages(const ReportData& report, const PageFont& font, bool showsCharts);

    /// Lays out @p pages more, fewer at the end. @return false once all are there.
    bool layOut(int pages);
    void layOutAll();
    [[nodiscard]] bool isComplete() const;

    [[nodiscard]] int pageCount() const { return static_cast<int>(m_pages.size()); }
    [[nodiscard]] const ReportPage& page(int index) const
    {
        return m_pages.at(static_cast<std::size_t>(index));
    }
    [[nodiscard]] const PageFrame& frame() const { return m_frame; }
    [[nodiscard]] const LineLayout& lines() const { return m_lines; }
    /// The only page of a summary; nothing for other reports.
    [[nodiscard]] const std::optional<BlockPage>& blocks() const { return m_blocks; }
    [[nodiscard]] std::vector<PlacedLine> placedLines(int page) const;
    /// The page of @p line; nothing while it is not laid out.
    [[nodiscard]] std::optional<int> pageOfLine(qsizetype line) const;

private:
    ReportPages(const ReportData& report, const PageFont& font, bool showsCharts, SheetColumns columns);
    void layOutPage();
    void addLines(ReportPage& page);
    void addBlock(ReportPage& page, qsizetype end);
    void takeLine(ReportPage& page);
    void addCharts(ReportPage& page);
    [[nodiscard]] std::size_t chartsInRow() const;
    [[nodiscard]] double rowHeight(std::size_t count, double width) const;
    [[nodiscard]] qsizetype blockEnd(qsizetype line) const;
    [[nodiscard]] double height(qsizetype first, qsizetype end) const;
    [[nodiscard]] std::vector<std::size_t> drawableCharts(bool showsCharts) const;

    const ReportData& m_report;
    PageFrame m_frame;
    LineLayout m_lines;
    std::optional<BlockPage> m_blocks;
    std::vector<std::size_t> m_charts; ///< still to be placed, the next one last
    std::vector<ReportPage> m_pages;
    qsizetype m_nextLine = 0;
    double m_y = 0;                   ///< the place of the next line or chart
    std::optional<qsizetype> m_group; ///< heading line of the group that the next line belongs to
};

} // namespace norvane::reports
