// See ReportFiles.h.
#include "command/ReportFiles.h"

#include "base/CustomerSettings.h"
#include "reports/files/PdfFile.h"
#include "reports/files/XlsxFile.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

constexpr auto formats = std::to_array<FileFormat>({
    {"pdf"_L1,
     [](const reports::ReportData& report, const QString& path, const reports::CsvSigns& /*signs*/) {
         reports::writePdf(report, true, path);
     }},
    {"csv"_L1,
     [](const reports::ReportData& report, const QString& path, const reports::CsvSigns& signs) {
         reports::writeCsvWith(signs, report, path);
     }},
    {"xlsx"_L1,
     [](const reports::ReportData& report, const QString& path, const reports::CsvSigns& /*signs*/) {
         reports::writeXlsx(report, path);
     }},
});

} // namespace

std::span<const FileFormat> fileFormats()
{
    return formats;
}

reports::ReportRequest reportRequest(const ApplicationValues& values, const QString& path,
                                     const QDateTime& now)
{
    reports::ReportRequest request;
    request.reportFile = path;
    request.dataFile = values.databasePath;
    request.customer = customerOf(values, values.databasePath);
    request.now = now;
    return request;
}

reports::ReportRequest reportRequest(const ApplicationValues& values, const QString& path,
                                     const QDateTime& now, const ReportSelection& selection)
{
    reports::ReportRequest request = reportRequest(values, path, now);
    request.reportTitle = selection.title;
    request.selectionFormula = selection.formula;
    return request;
}

std::optional<reports::ComparedWith> comparisonNamed(const QString& word)
{
    if (word == "before"_L1)
        return reports::ComparedWith::PeriodBefore;
    if (word == "year"_L1)
        return reports::ComparedWith::YearEarlier;
    return std::nullopt;
}

} // namespace norvane::command
