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
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// @throws CommandError Usage for a first day after the last one.
reports::Period daysOf(const Invocation& words)
{
    const reports::Period days{words.day("from"_L1), words.day("to"_L1), {}};
    if (days.from > days.to)
        throw CommandError(ExitCode::Usage, u"The first day is after the last one."_s);
    return days;
}

std::optional<ReportSelection> selectionOf(const QString& path, const Invocation& words, QDate today)
{
    if (words.has("day"_L1))
        return selectionOfPeriod(path, u"day"_s, words.day("day"_L1));
    if (words.has("period"_L1))
        return selectionOfPeriod(path, words.value("period"_L1), today);
    if (words.has("from"_L1))
        return selectionOfDays(path, daysOf(words));
    return std::nullopt;
}

reports::ComparedWith comparedWith(const Invocation& words)
{
    if (!words.has("compare"_L1))
        return reports::ComparedWith::Nothing;
    const QString with = words.value("compare"_L1);
    if (with != "before"_L1 && with != "year"_L1)
        throw CommandError(ExitCode::Usage, u"\"%1\" is neither before nor year."_s.arg(with));
    return with == "year"_L1 ? reports::ComparedWith::YearEarlier : reports::ComparedWith::PeriodBefore;
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
    const bool hasDays = words.has("from"_L1);
    if (hasDays != words.has("to"_L1))
        throw CommandError(ExitCode::Usage, u"Name both --from and --to."_s);
    const int chosen = int{words.has("day"_L1)} + int{words.has("period"_L1)} + int{hasDays};
    if (chosen > 1)
        throw CommandError(ExitCode::Usage, u"Either --day or --period or --from and --to."_s);
    if (chosen == 0 && words.has("compare"_L1))
        throw CommandError(ExitCode::Usage, u"--compare needs a period."_s);
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
    request.comparedWith = comparedWith(words);
    if (const auto selection = selectionOf(request.reportFile, words, request.now.date())) {
        request.reportTitle = selection->title;
        request.selectionFormula = selection->formula;
    }
    const reports::ReportData data = reports::runReport(request);
    for (const auto& format : formats) {
        if (words.has(format.option)) {
            workplace.writeUserFile(words.value(format.option),
                                    [&](const QString& path) { format.write(data, path, signs); });
        }
    }
}

} // namespace norvane::command
