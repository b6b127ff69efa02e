// See Period.h.
#include "reports/formula/Period.h"

#include "platform/ShownTime.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

struct NamedPeriod {
    QLatin1String word;
    QLatin1String name;
    QDate (*first)(QDate today);
};

/// Qt counts the days of the week from Monday, 1, to Sunday, 7.
QDate lastSunday(QDate today)
{
    return today.addDays(-(today.dayOfWeek() % 7));
}

constexpr std::array<NamedPeriod, 3> namedPeriods{{
    {"monthtodate"_L1, "Month to date"_L1,
     [](QDate today) {
         return QDate(today.year(), today.month(), 1);
     }},
    {"WeekToDateFromSun"_L1, "Week to date"_L1, lastSunday},
    {"YearToDate"_L1, "Year to date"_L1,
     [](QDate today) {
         return QDate(today.year(), 1, 1);
     }},
}};

} // namespace

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

std::optional<Period> namedPeriod(QStringView name, QDate today)
{
    for (const auto& known : namedPeriods) {
        if (name.compare(known.word, Qt::CaseInsensitive) == 0)
            return Period{known.first(today), today, known.name};
    }
    return std::nullopt;
}

} // namespace norvane::reports
