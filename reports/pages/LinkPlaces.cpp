// See LinkPlaces.h.
#include "reports/pages/LinkPlaces.h"

#include <algorithm>

namespace norvane::reports
{

QRectF linkPlace(const ReportData& report, const ReportPages& pages, const PlacedLine& line)
{
    if (!report.link || line.isContinued || !report.linkValue(line.line))
        return {};
    const auto& columns = pages.lines().places().columns;
    const auto last = static_cast<std::size_t>(std::max(1, report.namingColumns())) - 1;
    const ColumnPlace& first = columns.front();
    const bool isOneBand = columns.at(last).band == first.band;
    const double right = isOneBand ? columns.at(last).right() : first.right();
    const double top = line.place.top() + pages.lines().lead(line.line);
    return {QPointF(first.left + cellMargin, top), QPointF(right - cellMargin, line.place.bottom())};
}

qsizetype linkAt(const ReportData& report, const ReportPages& pages, int page, QPointF point)
{
    for (const PlacedLine& line : pages.placedLines(page)) {
        if (linkPlace(report, pages, line).contains(point))
            return line.line;
    }
    return -1;
}

qsizetype nextLink(const ReportData& report, qsizetype line, int step)
{
    if (!report.link)
        return -1;
    for (; line >= 0 && line < report.lineCount(); line += step) {
        if (report.linkValue(line))
            return line;
    }
    return -1;
}

} // namespace norvane::reports
