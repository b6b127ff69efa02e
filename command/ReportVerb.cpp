// Writes a report to files.
#include "command/CsvOption.h"
#include "command/ReportFiles.h"
#include "command/Verbs.h"
#include "platform/FilePaths.h"

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// @throws CommandError Usage for a first day after the last one.
reports::Period daysOf(const Invocation& words)
{
    reports::Period days{words.day("from"_L1), words.day("to"_L1), {}};
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
    const QString word = words.value("compare"_L1);
    const auto with = comparisonNamed(word);
    if (!with)
        throw CommandError(ExitCode::Usage, u"\"%1\" is neither before nor year."_s.arg(word));
    return *with;
}

void checkWords(const Invocation& words)
{
    if (std::ranges::none_of(fileFormats(), [&](const auto& format) { return words.has(format.name); }))
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
    const QString path = joinPath(workplace.appPath, name + u".rpt"_s);
    if (!pathExists(path)) {
        throw CommandError(ExitCode::NoSuchName,
                           u"There is no report \"%1\" in %2."_s.arg(name, workplace.appPath));
    }
    const QDateTime now = QDateTime::currentDateTime();
    const auto with = comparedWith(words);
    const auto selection = selectionOf(path, words, now.date());
    reports::ReportRequest request =
        selection ? reportRequest(values, path, now, *selection) : reportRequest(values, path, now);
    request.comparedWith = with;
    const reports::ReportData data = reports::runReport(request);
    for (const auto& format : fileFormats()) {
        if (words.has(format.name)) {
            workplace.writeUserFile(words.value(format.name),
                                    [&](const QString& file) { format.write(data, file, signs); });
        }
    }
}

} // namespace norvane::command
