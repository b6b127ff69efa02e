// Tables of the reports; see ReportEntries.h.
#include "sales/ReportEntries.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::sales
{
namespace
{

/// A report over a period that ends today.
constexpr auto fixed = ""_L1;

// The formulas have the table names that the reports have always used.
// clang-format off
constexpr auto entries = std::to_array<ReportEntry>({
    {"PLUSalesByDate_Click"_L1, "PLU Sales Report by Date."_L1, "\\plusales.rpt"_L1, "DAILYPLU"_L1, {}},
    {"PLUSalesMonthTodate_Click"_L1, "PLU Sales Report Month to Date"_L1, "\\plusales.rpt"_L1, fixed, "{PLUSALES.SALESDATE} in monthtodate"_L1},
    {"PLUSalesWeekTodate_Click"_L1, "PLU Sales Report Week to Date"_L1, "\\plusales.rpt"_L1, fixed, "{PLUSALES.SALESDATE} in WeekToDateFromSun"_L1},
    {"PLUSalesYearToDate_Click"_L1, "PLU Sales Report Year to Date"_L1, "\\plusales.rpt"_L1, fixed, "{PLUSALES.SALESDATE} in YearToDate"_L1},
    {"FinDate_Click"_L1, "Financial Sales Report by Date."_L1, "\\finsales.rpt"_L1, "DAILYFIN"_L1, {}},
    {"FinMonth_Click"_L1, "Financial Sales Report Month to Date"_L1, "\\finsales.rpt"_L1, fixed, "{FINANCIALSALES.SALESDATE} in monthtodate"_L1},
    {"Finweek_Click"_L1, "Financial Sales Report Week to Date"_L1, "\\finsales.rpt"_L1, fixed, "{financialSALES.SALESDATE} in WeekToDateFromSun"_L1},
    {"FinYear_Click"_L1, "Financial Sales Report Year to Date"_L1, "\\finsales.rpt"_L1, fixed, "{financialSALES.SALESDATE} in YearToDate"_L1},
    {"TimeByDate_Click"_L1, "Time Period Report by Date."_L1, "\\timesales.rpt"_L1, "DAILYTIME"_L1, {}},
    {"TimeMonth_Click"_L1, "Time Period Sales Report Month to Date"_L1, "\\timesales.rpt"_L1, fixed, "{timeSALES.SALESDATE} in monthtodate"_L1},
    {"TimeWeek_Click"_L1, "Time Period Sales Report Week to Date"_L1, "\\timesales.rpt"_L1, fixed, "{timeSALES.SALESDATE} in WeekToDateFromSun"_L1},
    {"TimeYear_Click"_L1, "Time Period Sales Report Year to Date"_L1, "\\timesales.rpt"_L1, fixed, "{timeSALES.SALESDATE} in YearToDate"_L1},
    {"ClerkDate_Click"_L1, "Clerk Sales Report by Date."_L1, "\\clerksales.rpt"_L1, "DAILYCLERK"_L1, {}},
    {"Clerkmonth_Click"_L1, "Clerk Sales Report Month to Date"_L1, "\\clerksales.rpt"_L1, fixed, "{CLERKSALES.SALESDATE} in monthtodate"_L1},
    {"clerkweek_Click"_L1, "Clerk Sales Report Week to Date"_L1, "\\clerksales.rpt"_L1, fixed, "{clerkSALES.SALESDATE} in WeekToDateFromSun"_L1},
    {"Clerkyear_Click"_L1, "Clerk Sales Report Year to Date"_L1, "\\clerksales.rpt"_L1, fixed, "{clerkSALES.SALESDATE} in YearToDate"_L1},
    {"MixDate_Click"_L1, "Mix Sales Report by Date."_L1, "\\mixsales.rpt"_L1, "DAILYMIX"_L1, {}},
    {"MixMonth_Click"_L1, "Mix N Match Sales Report Month to Date"_L1, "\\mixsales.rpt"_L1, fixed, "{MIXSALES.SALESDATE} in monthtodate"_L1},
    {"MixWeek_Click"_L1, "Mix N Match Sales Report Week to Date"_L1, "\\mixsales.rpt"_L1, fixed, "{mixSALES.SALESDATE} in WeekToDateFromSun"_L1},
    {"Mixyear_Click"_L1, "Mix N Match Sales Report Year to Date"_L1, "\\mixsales.rpt"_L1, fixed, "{MIXSALES.SALESDATE} in YearToDate"_L1},
    {"Pluprice_Click"_L1, "PLU Price List Report"_L1, "\\pluprice.rpt"_L1, std::nullopt, {}, TitleUse::Window},
});

/// The part of a formula before the day.
struct DayPrefix {
    QLatin1StringView mode;
    QLatin1StringView text;
};
constexpr auto prefixes = std::to_array<DayPrefix>({
    {"DAILYPLU"_L1, "{PLUSALES.SALESDATE} = date("_L1},
    {"DAILYFIN"_L1, "{FINANCIALSALES.SALESDATE} = date("_L1},
    {"DAILYTIME"_L1, "{TIMESALES.SALESDATE} = date("_L1},
    {"DAILYCLERK"_L1, "{CLERKSALES.SALESDATE} = date("_L1},
    {"DAILYMIX"_L1, "{MIXSALES.SALESDATE} = date("_L1},
});
// clang-format on

/// How titles end, and what the list of periods shows for that.
struct TitleEnd {
    QLatin1StringView end;
    QLatin1StringView period;
};
constexpr auto titleEnds = std::to_array<TitleEnd>({
    {" by Date."_L1, "Day in the calendar"_L1},
    {" Month to Date"_L1, "Month to date"_L1},
    {" Week to Date"_L1, "Week to date"_L1},
    {" Year to Date"_L1, "Year to date"_L1},
});

const TitleEnd* endOf(const ReportEntry& entry)
{
    const auto* const found = std::ranges::find_if(
        titleEnds, [&entry](const TitleEnd& each) { return entry.title.endsWith(each.end); });
    return found == titleEnds.end() ? nullptr : found;
}

const DayPrefix* prefixOf(const QString& mode)
{
    const auto* const prefix = std::ranges::find(prefixes, mode, &DayPrefix::mode);
    return prefix == prefixes.end() ? nullptr : prefix;
}

} // namespace

std::span<const ReportEntry> reportEntries()
{
    return entries;
}

QString dayFieldOf(const ReportEntry& entry)
{
    const auto* const prefix = entry.mode ? prefixOf(QString(*entry.mode)) : nullptr;
    const QString formula = prefix != nullptr ? prefix->text : entry.formula;
    return formula.left(formula.indexOf(u'}') + 1);
}

QString periodOf(const ReportEntry& entry)
{
    const auto* const end = endOf(entry);
    return end == nullptr ? QString() : QString(end->period);
}

QString titleWithoutPeriod(const ReportEntry& entry)
{
    const auto* const end = endOf(entry);
    return end == nullptr ? entry.title : entry.title.chopped(end->end.size());
}

std::optional<QString> formulaOfDay(const QString& mode, QDate day)
{
    const auto* const prefix = prefixOf(mode);
    if (prefix == nullptr)
        return std::nullopt;
    return u"%1%2,%3,%4)"_s.arg(prefix->text).arg(day.year()).arg(day.month()).arg(day.day());
}

} // namespace norvane::sales
