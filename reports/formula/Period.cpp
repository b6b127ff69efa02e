// See Period.h.
#include "reports/formula/Period.h"

#include "platform/ShownTime.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

QDate same(QDate today)
{
    return today;
}

QDate dayBefore(QDate today)
{
    return today.addDays(-1);
}

/// Qt counts the days of the week from Monday, 1, to Sunday, 7.
QDate lastSunday(QDate today)
{
    return today.addDays(-(today.dayOfWeek() % 7));
}

QDate lastMonday(QDate today)
{
    return today.addDays(1 - today.dayOfWeek());
}

QDate firstOfMonth(QDate today)
{
    return {today.year(), today.month(), 1};
}

QDate firstOfQuarter(QDate today)
{
    constexpr int months = 3;
    return {today.year(), (today.month() - 1) / months * months + 1, 1};
}

QDate firstOfYear(QDate today)
{
    return {today.year(), 1, 1};
}

/// The first day of the week, month and so on before that of today.
template <QDate (*first)(QDate)>
QDate firstBefore(QDate today)
{
    return first(dayBefore(first(today)));
}

template <QDate (*first)(QDate)>
QDate lastBefore(QDate today)
{
    return dayBefore(first(today));
}

// clang-format off
constexpr auto periods = std::to_array<NamedPeriod>({
    {"monthtodate"_L1, "Month to date"_L1, firstOfMonth, same},
    {"WeekToDateFromSun"_L1, "Week to date"_L1, lastSunday, same},
    {"YearToDate"_L1, "Year to date"_L1, firstOfYear, same},
    {"yesterday"_L1, "Yesterday"_L1, dayBefore, dayBefore},
    {"lastweekfromsun"_L1, "Last week from Sunday"_L1, firstBefore<lastSunday>, lastBefore<lastSunday>},
    {"lastweekfrommon"_L1, "Last week from Monday"_L1, firstBefore<lastMonday>, lastBefore<lastMonday>},
    {"lastmonth"_L1, "Last month"_L1, firstBefore<firstOfMonth>, lastBefore<firstOfMonth>},
    {"lastquarter"_L1, "Last quarter"_L1, firstBefore<firstOfQuarter>, lastBefore<firstOfQuarter>},
    {"lastyear"_L1, "Last year"_L1, firstBefore<firstOfYear>, lastBefore<firstOfYear>},
});
// clang-format on

bool isEndOfMonth(QDate day)
{
    return day.day() == day.daysInMonth();
}

/// After how many months days such as those of @p period come again: whole months after as many, the first
/// days of a month or a year after one. @return nothing for other days.
std::optional<int> monthsOf(const Period& period)
{
    constexpr int monthsOfYear = 12;
    const auto& [from, to, name] = period;
    const int months = (to.year() - from.year()) * monthsOfYear + to.month() - from.month() + 1;
    if (from.day() != 1 || from == to)
        return std::nullopt;
    if (isEndOfMonth(to) || months == 1)
        return months;
    if (from.month() == 1 && from.year() == to.year())
        return monthsOfYear;
    return std::nullopt;
}

/// The last day of a month remains one: that of February, too.
Period monthsEarlier(const Period& period, int months)
{
    QDate to = period.to.addMonths(-months);
    if (isEndOfMonth(period.to))
        to.setDate(to.year(), to.month(), to.daysInMonth());
    return {period.from.addMonths(-months), to, {}};
}

QString dateFormula(QDate day)
{
    return u"date(%1,%2,%3)"_s.arg(day.year()).arg(day.month()).arg(day.day());
}

Period daysEarlier(const Period& period, qint64 days)
{
    return {period.from.addDays(-days), period.to.addDays(-days), {}};
}

} // namespace

bool Period::isToDate() const
{
    return std::ranges::any_of(
        periods, [this](const NamedPeriod& known) { return known.last == same && name == known.name; });
}

QString Period::text() const
{
    QString days;
    if (from == to) {
        days = (name.isEmpty() ? from.toString(u"dddd, ") : QString()) + shownDay(from);
    } else if (!from.isValid()) {
        days = u"up to %1"_s.arg(shownDay(to));
    } else if (!to.isValid()) {
        days = u"from %1"_s.arg(shownDay(from));
    } else {
        days = u"%1 to %2"_s.arg(shownDay(from), shownDay(to));
    }
    return name.isEmpty() || days.isEmpty() ? name + days : name + u", "_s + days;
}

std::span<const NamedPeriod> namedPeriods()
{
    return periods;
}

std::optional<Period> namedPeriod(QStringView name, QDate today)
{
    for (const auto& known : periods) {
        if (name.compare(known.word, Qt::CaseInsensitive) == 0)
            return Period{known.first(today), known.last(today), known.name};
    }
    return std::nullopt;
}

QString formulaOf(const QString& field, const Period& period)
{
    return u"%1 in %2 to %3"_s.arg(field, dateFormula(period.from), dateFormula(period.to));
}

Period periodBefore(const Period& period)
{
    const auto months = monthsOf(period);
    return months ? monthsEarlier(period, *months) : daysEarlier(period, period.from.daysTo(period.to) + 1);
}

Period yearEarlier(const Period& period)
{
    constexpr int monthsOfYear = 12;
    constexpr qint64 weekdays = 7;
    constexpr qint64 weeksOfYear = 52;
    const bool isShort = period.from.daysTo(period.to) < weekdays;
    return isShort && !monthsOf(period) ? daysEarlier(period, weekdays * weeksOfYear)
                                        : monthsEarlier(period, monthsOfYear);
}

} // namespace norvane::reports
