// See PagedReport.h.
#include "reports/files/PagedReport.h"

#include "paper/PageDevice.h"
#include "reports/pages/ReportPainter.h"

#include <algorithm>

namespace norvane::reports
{

bool paintReport(const ReportData& report, bool showsCharts, QPagedPaintDevice& device,
                 const KeepGoing& keepGoing, PageSpan span,
                 const std::function<void(const ReportPages&)>& laidOut)
{
    const PageFont font;
    ReportPages pages(report, font, showsCharts);
    pages.layOutAll();
    if (laidOut)
        laidOut(pages);
    const ReportPainter painter(report, pages, font);
    paper::PageDevice paper(device, QPageSize(QPageSize::A4),
                            pages.frame().isLandscape() ? QPageLayout::Landscape : QPageLayout::Portrait);
    for (int page = span.first - 1; page < std::min(span.last, pages.pageCount()); ++page) {
        painter.paint(paper.nextPage(), page);
        needGoOn(keepGoing);
    }
    return paper.finish();
}

} // namespace norvane::reports
