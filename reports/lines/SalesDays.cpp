// See SalesDays.h.
#include "reports/lines/SalesDays.h"

#include "store/catalogue/SalesTables.h"
#include "store/engine/BoundQuery.h"

#include <algorithm>
#include <array>
#include <string>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

namespace salestable = store::salestable;

/// A collection leaves out lines that are zero, so a day may have rows in one table only.
constexpr std::array tablesOfSales{salestable::times, salestable::clerks, salestable::plus, salestable::mixes,
                                   salestable::financials};

/// From the last day before the period, or else the first of all, each step finds the next day by the index:
/// a table of many years is not read completely.
std::string daysOf(const char* table)
{
    const std::string day = salestable::day;
    const std::string from = " FROM " + std::string(table) + " WHERE " + day;
    return "WITH RECURSIVE d(day) AS (SELECT ifnull((SELECT max(" + day + ')' + from + " < ?), (SELECT min(" +
           day + ')' + from + " <= ?)) UNION ALL SELECT (SELECT min(" + day + ')' + from + " > d.day AND " +
           day + " <= ?) FROM d WHERE d.day IS NOT NULL) SELECT day FROM d WHERE day IS NOT NULL";
}

void collectDays(store::Database& database, const char* table, const Period& period,
                 const std::function<bool()>& keepGoing, std::set<QDate>& days)
{
    if (!database.hasTable(QLatin1String(table)))
        return;
    const auto to = store::Value::date(period.to);
    store::BoundQuery query(database, daysOf(table), {store::Value::date(period.from), to, to},
                            QLatin1String(table), keepGoing);
    while (query.next())
        days.insert(query.value(0).toDate());
}

/// Includes the weekday: a shop may be closed on the same day every week.
QString shortDay(QDate day)
{
    return day.toString(u"ddd dd/MM/yyyy");
}

} // namespace

std::set<QDate> daysWithLast(store::Database& database, const Period& period,
                             const std::function<bool()>& keepGoing)
{
    std::set<QDate> days;
    for (const char* const table : tablesOfSales)
        collectDays(database, table, period, keepGoing, days);
    return days;
}

std::set<QDate> collectedDays(store::Database& database, const Period& period,
                              const std::function<bool()>& keepGoing)
{
    auto days = daysWithLast(database, period, keepGoing);
    days.erase(days.begin(), days.lower_bound(period.from));
    return days;
}

std::optional<SalesDays> salesDays(store::Database& database, const Period& period, QDate today,
                                   const std::function<bool()>& keepGoing)
{
    const auto days = daysWithLast(database, period, keepGoing);
    if (days.empty())
        return std::nullopt;
    SalesDays found{std::max(period.from, *days.begin()),
                    std::min(period.to, days.contains(today) ? today : today.addDays(-1)),
                    {}};
    if (found.first > found.last)
        return std::nullopt;
    for (QDate day = found.first; day <= found.last; day = day.addDays(1)) {
        if (!days.contains(day))
            found.missing.push_back(day);
    }
    return found;
}

QString textOfDays(const std::vector<QDate>& days, std::size_t most)
{
    QStringList texts;
    std::size_t next = 0;
    while (next < days.size() && texts.size() < static_cast<qsizetype>(most)) {
        const std::size_t first = next++;
        while (next < days.size() && days[next] == days[next - 1].addDays(1))
            ++next;
        const QString from = shortDay(days[first]);
        texts.append(next - first == 1 ? from : u"%1 to %2"_s.arg(from, shortDay(days[next - 1])));
    }
    const QString text = texts.join(u", "_s);
    return next < days.size() ? u"%1 and %2 more days"_s.arg(text).arg(days.size() - next) : text;
}

} // namespace norvane::reports
