// See ReportPeriods.h.
#include "command/ReportPeriods.h"

#include "command/ExitCode.h"

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
    QLatin1StringView inFormula; ///< empty for one day, which the user chooses
};
constexpr auto periods = std::to_array<PeriodWord>({
    {dayPeriod, {}},
    {"week"_L1, "WeekToDateFromSun"_L1},
    {"month"_L1, "monthtodate"_L1},
    {"year"_L1, "YearToDate"_L1},
});

bool isOfPeriod(const sales::ReportEntry& entry, const PeriodWord& period)
{
    if (period.inFormula.isEmpty())
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

const sales::ReportEntry& entryOfPeriod(const QString& name, const QString& period)
{
    const auto* const word = std::ranges::find(periods, period, &PeriodWord::word);
    const auto* const entry = word == periods.end() ? nullptr : findEntry(name, *word);
    if (entry != nullptr)
        return *entry;
    const QStringList words = periodsOf(name);
    const QString known = words.isEmpty() ? QString() : u" It has: %1."_s.arg(words.join(u", "_s));
    throw CommandError(ExitCode::Usage, u"The report %1 has no period \"%2\"."_s.arg(name, period) + known);
}

} // namespace norvane::command
