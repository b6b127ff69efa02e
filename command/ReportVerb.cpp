// A report into files.
#include "base/CustomerSettings.h"
#include "command/Verbs.h"
#include "platform/FilePaths.h"
#include "reports/ReportFiles.h"
#include "sales/ReportEntries.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// The word of a period on the command line, and how the formulas of the menu say it.
struct PeriodWord {
    QLatin1StringView word;
    QLatin1StringView inFormula;
};
constexpr auto periods = std::to_array<PeriodWord>({
    {"week"_L1, "WeekToDateFromSun"_L1},
    {"month"_L1, "monthtodate"_L1},
    {"year"_L1, "YearToDate"_L1},
});
constexpr auto dayWord = "day"_L1;

/// The entries of the menu that open the layout @p name.
auto entriesOf(const QString& name)
{
    std::vector<const sales::ReportEntry*> found;
    for (const auto& entry : sales::reportEntries()) {
        if (QString(entry.file).mid(1).compare(name + u".rpt"_s, Qt::CaseInsensitive) == 0)
            found.push_back(&entry);
    }
    return found;
}

/// @throws CommandError Usage for a report that has no such period.
const sales::ReportEntry& entryOfPeriod(const QString& name, const QString& period)
{
    const auto* const word =
        std::ranges::find_if(periods, [&](const auto& each) { return period == each.word; });
    for (const auto* const entry : entriesOf(name)) {
        const bool isOfDay = entry->formula.isEmpty() && entry->mode && !entry->mode->isEmpty();
        if (period == dayWord ? isOfDay : word != periods.end() && entry->formula.endsWith(word->inFormula))
            return *entry;
    }
    throw CommandError(ExitCode::Usage, u"The report %1 has no period \"%2\"."_s.arg(name, period));
}

QDate dayOf(const QString& text)
{
    const QDate day = QDate::fromString(text, Qt::ISODate);
    if (!day.isValid())
        throw CommandError(ExitCode::Usage, u"\"%1\" is no day such as 2026-11-25."_s.arg(text));
    return day;
}

/// Formula and heading as the menu's entry for that period sets them.
void selectPeriod(reports::ReportRequest& request, const QString& name, const Invocation& words)
{
    const bool ofOneDay = words.has("day"_L1);
    if (!ofOneDay && !words.has("period"_L1))
        return;
    const auto& entry = entryOfPeriod(name, ofOneDay ? QString(dayWord) : words.value("period"_L1));
    request.reportTitle = entry.title;
    request.selectionFormula = entry.formula;
    if (entry.formula.isEmpty()) {
        const QDate day = ofOneDay ? dayOf(words.value("day"_L1)) : request.now.date();
        request.selectionFormula = *sales::formulaOfDay(*entry.mode, day);
    }
}

struct Target {
    QLatin1StringView option;
    void (*write)(const reports::ReportData& report, const QString& path);
};
constexpr auto targets = std::to_array<Target>({
    {"pdf"_L1,
     [](const reports::ReportData& report, const QString& path) {
         reports::writePdf(report, true, path);
     }},
    {"csv"_L1,
     [](const reports::ReportData& report, const QString& path) {
         reports::writeCsv(report, path);
     }},
    {"xlsx"_L1,
     [](const reports::ReportData& report, const QString& path) {
         reports::writeXlsx(report, path);
     }},
});

void checkWords(const Invocation& words)
{
    if (std::ranges::none_of(targets, [&](const auto& target) { return words.has(target.option); }))
        throw CommandError(ExitCode::Usage, u"Name a file with --pdf, --csv or --xlsx."_s);
    if (words.has("day"_L1) && words.has("period"_L1))
        throw CommandError(ExitCode::Usage, u"Either --day or --period."_s);
}

} // namespace

void report(const Workplace& workplace, const Invocation& words)
{
    checkWords(words);
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
    for (const auto& target : targets) {
        if (words.has(target.option))
            target.write(data, workplace.userFile(words.value(target.option)));
    }
}

} // namespace norvane::command
