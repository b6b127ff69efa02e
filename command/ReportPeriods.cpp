// See ReportPeriods.h.
#include "command/ReportPeriods.h"

#include "command/ExitCode.h"
#include "sales/ReportEntries.h"

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
    bool isOfMenu = false;
};
constexpr auto periods = std::to_array<PeriodWord>({
    {"day"_L1, {}, true},
    {"week"_L1, "WeekToDateFromSun"_L1, true},
    {"month"_L1, "monthtodate"_L1, true},
    {"year"_L1, "YearToDate"_L1, true},
    {"yesterday"_L1, "yesterday"_L1},
    {"lastweek"_L1, "lastweekfromsun"_L1},
    {"lastweek-monday"_L1, "lastweekfrommon"_L1},
    {"lastmonth"_L1, "lastmonth"_L1},
    {"lastquarter"_L1, "lastquarter"_L1},
    {"lastyear"_L1, "lastyear"_L1},
});

/// Any period that the menu does not have is made from the entry for a single day.
bool isOfPeriod(const sales::ReportEntry& entry, const PeriodWord& period)
{
    if (period.inFormula.isEmpty() || !period.isOfMenu)
        return entry.formula.isEmpty() && entry.mode && !entry.mode->isEmpty();
    return entry.formula.endsWith(period.inFormula);
}

const sales::ReportEntry* findEntry(const QString& name, const PeriodWord& period)
{
    const auto entries = sales::reportEntries();
    const auto entry = std::ranges::find_if(entries, [&](const sales::ReportEntry& each) {
        return QString(each.file).mid(1).compare(name + u".rpt"_s, Qt::CaseInsensitive) == 0 &&
               isOfPeriod(each, period);
    });
    return entry == entries.end() ? nullptr : &*entry;
}

[[noreturn]] void failWithout(const QString& name, const QString& what)
{
    const QStringList words = periodsOf(name);
    const QString known = words.isEmpty() ? QString() : u" It has: %1."_s.arg(words.join(u", "_s));
    throw CommandError(ExitCode::Usage, u"The report %1 has no %2."_s.arg(name, what) + known);
}

} // namespace

QStringList periodsOf(const QString& name)
{
    QStringList words;
    for (const PeriodWord& period : periods) {
        if (findEntry(name, period) != nullptr)
            words << period.word;
    }
    return words;
}

ReportSelection selectionOfPeriod(const QString& name, const QString& period, QDate today)
{
    const auto* const word = std::ranges::find(periods, period, &PeriodWord::word);
    const auto* const entry = word == periods.end() ? nullptr : findEntry(name, *word);
    if (entry == nullptr)
        failWithout(name, u"period \"%1\""_s.arg(period));
    if (!word->isOfMenu)
        return {sales::titleWithoutPeriod(*entry), sales::dayFieldOf(*entry) + u" in "_s + word->inFormula};
    if (entry->formula.isEmpty())
        return {entry->title, *sales::formulaOfDay(*entry->mode, today)};
    return {entry->title, entry->formula};
}

ReportSelection selectionOfDays(const QString& name, const reports::Period& days)
{
    const auto* const entry = findEntry(name, periods.front());
    if (entry == nullptr)
        failWithout(name, u"periods"_s);
    return {sales::titleWithoutPeriod(*entry), reports::formulaOf(sales::dayFieldOf(*entry), days)};
}

} // namespace norvane::command
