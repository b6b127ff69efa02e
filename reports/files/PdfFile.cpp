// See PdfFile.h.
#include "reports/files/PdfFile.h"

#include "reports/files/PagedReport.h"
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
    if (!paintReport(report, showsCharts, writer, keepGoing))
        failWriting(path, u"the pages could not be painted."_s);
    replaceFile(path, content.data());
}

} // namespace norvane::reports
