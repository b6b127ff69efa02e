// See PdfFile.h.
#include "reports/files/PdfFile.h"

#include "reports/files/PagedReport.h"
#include "reports/files/PdfOutline.h"
#include "reports/files/TargetFile.h"

#include <QBuffer>
#include <QPdfWriter>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{

void writePdf(const ReportData& report, bool showsCharts, const QString& path, const KeepGoing& keepGoing)
{
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    QPdfWriter writer(&content);
    writer.setTitle(report.heading.title);
    std::vector<OutlineEntry> outline;
    const auto noteOutline = [&](const ReportPages& pages) {
        outline = outlineOf(report, pages);
    };
    if (!paintReport(report, showsCharts, writer, keepGoing, {}, noteOutline))
        failWriting(path, u"the pages could not be painted."_s);
    replaceFile(path, withOutline(content.data(), outline));
}

} // namespace norvane::reports
