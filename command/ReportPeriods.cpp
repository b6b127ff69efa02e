// See ReportPeriods.h.
#include "command/ReportPeriods.h"

#include "command/ExitCode.h"
#include "reports/lines/LayoutReader.h"
#include "sales/ReportEntries.h"

#include <QFileInfo>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::command
{
namespace
{

/// The word of a period on the command line, and how formulas name it.
struct PeriodWord {
    QLatin1StringView word;
    QLatin1StringView inFormula; ///< empty for one day
};
constexpr auto periods = std::to_array<PeriodWord>({
    {"day"_L1, {}},
    {"week"_L1, "WeekToDateFromSun"_L1},
    {"month"_L1, "monthtodate"_L1},
    {"year"_L1, "YearToDate"_L1},
    {"yesterday"_L1, "yesterday"_L1},
    {"lastweek"_L1, "lastweekfromsun"_L1},
    {"lastweek-monday"_L1, "lastweekfrommon"_L1},
    {"lastmonth"_L1, "lastmonth"_L1},
    {"lastquarter"_L1, "lastquarter"_L1},
    {"lastyear"_L1, "lastyear"_L1},
});

bool isOfPeriod(const sales::ReportEntry& entry, const PeriodWord& period)
{
    if (period.inFormula.isEmpty())
        return entry.formula.isEmpty() && entry.mode && !entry.mode->isEmpty();
    return entry.formula.endsWith(period.inFormula);
}

/// The first entry of the menu for the report, of one period or of any. @return nullptr if there is none.
const sales::ReportEntry* findEntry(const QString& path, const PeriodWord* period = nullptr)
{
    const QString file = QFileInfo(path).fileName();
    const auto entries = sales::reportEntries();
    const auto entry = std::ranges::find_if(entries, [&](const sales::ReportEntry& each) {
        return QString(each.file).mid(1).compare(file, Qt::CaseInsensitive) == 0 &&
               (period == nullptr || isOfPeriod(each, *period));
    });
    return entry == entries.end() ? nullptr : &*entry;
}

/// The field with the day of a sale; empty for a report without days.
QString dayFieldOf(const QString& path)
{
    if (const auto* const entry = findEntry(path))
        return sales::dayFieldOf(*entry);
    const auto day = reports::readLayout(path).source.day();
    return day ? day->text() : QString();
}

QString menuTitleOf(const QString& path)
{
    const auto* const entry = findEntry(path);
    return entry == nullptr ? QString() : sales::titleWithoutPeriod(*entry);
}

[[noreturn]] void failWithout(const QString& path, const QString& what)
{
    const QStringList words = periodsOf(path);
    const QString known = words.isEmpty() ? QString() : u" It has: %1."_s.arg(words.join(u", "_s));
    throw CommandError(ExitCode::Usage,
                       u"The report %1 has no %2."_s.arg(QFileInfo(path).completeBaseName(), what) + known);
}

} // namespace

QStringList periodsOf(const QString& path)
{
    QStringList words;
    if (dayFieldOf(path).isEmpty())
        return words;
    for (const PeriodWord& period : periods)
        words << period.word;
    return words;
}

ReportSelection selectionOfPeriod(const QString& path, const QString& period, QDate today)
{
    const auto* const word = std::ranges::find(periods, period, &PeriodWord::word);
    const QString field = dayFieldOf(path);
    if (word == periods.end() || field.isEmpty())
        failWithout(path, u"period \"%1\""_s.arg(period));
    const auto* const entry = findEntry(path, word);
    if (word->inFormula.isEmpty())
        return {entry == nullptr ? QString() : entry->title, reports::formulaOf(field, {today, today, {}})};
    if (entry != nullptr)
        return {entry->title, entry->formula};
    return {menuTitleOf(path), field + u" in "_s + word->inFormula};
}

ReportSelection selectionOfDays(const QString& path, const reports::Period& days)
{
    const QString field = dayFieldOf(path);
    if (field.isEmpty())
        failWithout(path, u"periods"_s);
    return {menuTitleOf(path), reports::formulaOf(field, days)};
}

} // namespace norvane::command
