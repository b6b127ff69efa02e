// Writes a report to files.
#include "base/CustomerSettings.h"
#include "command/CsvOption.h"
#include "command/ReportPeriods.h"
#include "command/Verbs.h"
#include "platform/FilePaths.h"
#include "reports/files/CsvFile.h"
#include "reports/files/PdfFile.h"
#include "reports/files/XlsxFile.h"
#include "reports/lines/ReportRun.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

QDate dayOf(const QString& text)
{
    const QDate day = QDate::fromString(text, Qt::ISODate);
    if (!day.isValid())
        throw CommandError(ExitCode::Usage, u"\"%1\" is not a day such as 2026-11-25."_s.arg(text));
    return day;
}

/// Formula and heading as the menu's entry for that period sets them.
void selectPeriod(reports::ReportRequest& request, const QString& name, const Invocation& words)
{
    const bool ofOneDay = words.has("day"_L1);
    if (!ofOneDay && !words.has("period"_L1))
        return;
    const auto& entry = entryOfPeriod(name, ofOneDay ? QString(dayPeriod) : words.value("period"_L1));
    request.reportTitle = entry.title;
    request.selectionFormula = entry.formula;
    if (entry.formula.isEmpty()) {
        const QDate day = ofOneDay ? dayOf(words.value("day"_L1)) : request.now.date();
        request.selectionFormula = *sales::formulaOfDay(*entry.mode, day);
    }
}

struct FileFormat {
    QLatin1StringView option;
    void (*write)(const reports::ReportData& report, const QString& path, const reports::CsvSigns& signs);
};
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

void checkWords(const Invocation& words)
{
    if (std::ranges::none_of(formats, [&](const auto& format) { return words.has(format.option); }))
        throw CommandError(ExitCode::Usage, u"Name a file with --pdf, --csv or --xlsx."_s);
    if (words.has("day"_L1) && words.has("period"_L1))
        throw CommandError(ExitCode::Usage, u"Either --day or --period."_s);
}

} // namespace

void report(const Workplace& workplace, const Invocation& words)
{
    checkWords(words);
    const reports::CsvSigns signs = signsToWrite(words);
    const ApplicationValues values = takeCustomer(workplace, words.operands[0]);
    const QString name = words.operands[1];
    reports::ReportRequest request;
    request.reportFile = joinPath(workplace.appPath, name + u".rpt"_s);
    if (!pathExists(request.reportFile)) {
        throw CommandError(ExitCode::NoSuchName,
                           u"There is no report \"%1\" in %2."_s.arg(name, workplace.appPath));
    }
    request.dataFile = values.databasePath;
    request.customer = customerOf(values, values.databasePath);
    request.now = QDateTime::currentDateTime();
    selectPeriod(request, name, words);
    const reports::ReportData data = reports::runReport(request);
    for (const auto& format : formats) {
        if (words.has(format.option)) {
            workplace.writeUserFile(words.value(format.option),
                                    [&](const QString& path) { format.write(data, path, signs); });
        }
    }
}

} // namespace norvane::command
