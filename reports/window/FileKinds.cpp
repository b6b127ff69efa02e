// See FileKinds.h.
#include "reports/window/FileKinds.h"

#include "reports/files/CsvFile.h"
#include "reports/files/PdfFile.h"
#include "reports/files/XlsxFile.h"

#include <QRegularExpression>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

constexpr std::array<FileKind, 3> kinds = {{
    {"SavePdf", "&PDF, as printed...", "PDF (*.pdf)", "pdf", writePdf},
    {"SaveXlsx", "&Spreadsheet (XLSX)...", "Spreadsheet (*.xlsx)", "xlsx",
     [](const ReportData& report, bool, const QString& path, const KeepGoing& keepGoing) {
         writeXlsx(report, path, keepGoing);
     }},
    {"SaveCsv", "&Values (CSV)...", "Values (*.csv)", "csv",
     [](const ReportData& report, bool, const QString& path, const KeepGoing& keepGoing) {
         writeCsv(report, path, keepGoing);
     }},
}};

/// "2026-11-01 to 2026-11-25", which sorts by day in a folder.
QString periodOf(const ReportHeading& heading)
{
    QStringList days;
    for (const QDate day : {heading.from, heading.to}) {
        const QString text = day.toString(Qt::ISODate);
        if (!text.isEmpty() && !days.contains(text))
            days << text;
    }
    return days.join(u" to "_s);
}

} // namespace

std::span<const FileKind> fileKinds()
{
    return kinds;
}

QString fileNameFor(const ReportHeading& heading)
{
    static const QRegularExpression unfit(u"[^\\w -]+"_s, QRegularExpression::UseUnicodePropertiesOption);
    QStringList parts{heading.customer, heading.title, periodOf(heading)};
    for (QString& part : parts)
        part = part.remove(unfit).simplified();
    parts.removeAll(QString());
    return parts.join(u" - "_s);
}

} // namespace norvane::reports
