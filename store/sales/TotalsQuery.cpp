// See TotalsQuery.h. A source for the rows of a year and some days, shortened:
//
//   (select [ID], [VALUE] from (select * from (values ('2026-01-01', '2026-12-31', '2026-01'))
//                               where column3 in (select month from [added years])) p
//           cross join [year totals] where [SALESDATE] between p.column1 and p.column2
//    union all
//    select [ID], [VALUE] from (select * from (values ('2026-01-01', '2026-01-31', '2026-01', '2026-01'),
//    ...)
//                               where column3 not in (select month from [added years])
//                                 and column4 in (select month from [added months])) p
//           cross join [month totals] where [SALESDATE] between p.column1 and p.column2
//    union all ... [the rows], where neither is listed ...)
//
// A condition on the lists beside that on the day would be looked at for every row of a month that has
// totals. The cross join looks once for each time, before any row is read.
#include "store/sales/TotalsQuery.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

QString bracketed(const QString& name)
{
    return u'[' + name + u']';
}

QString quoted(const QString& text)
{
    return u'\'' + text + u'\'';
}

QString quoted(QDate day)
{
    return quoted(day.toString(Qt::ISODate));
}

/// The fields of a table that are wanted, as a list of columns.
QString columnsOf(const TableDefinition& table, const QStringList& fields)
{
    QStringList columns;
    for (const auto& field : table.fields) {
        if (fields.isEmpty() || fields.contains(field.name, Qt::CaseInsensitive))
            columns.append(bracketed(field.name));
    }
    return columns.join(u", "_s);
}

} // namespace

QVector<DayRange> wholeTimes(const TotalsLevel& level, const DayRange& days)
{
    QVector<DayRange> times;
    QDate first(days.first.year(), level.months == 1 ? days.first.month() : 1, 1);
    if (first < days.first)
        first = first.addMonths(level.months);
    for (; first.addMonths(level.months) <= days.last.addDays(1); first = first.addMonths(level.months))
        times.append({first, first.addMonths(level.months).addDays(-1)});
    return times;
}

QString keyOfTotals(QDate first)
{
    return first.toString(u"yyyy-MM"_s);
}

TotalsQuery::TotalsQuery(const TableDefinition& table, std::span<const TotalsLevel> levels,
                         const QStringList& fields)
    : m_levels(levels), m_table(table.name), m_columns(columnsOf(table, fields)),
      m_day(bracketed(table.searchedField))
{
}

QString TotalsQuery::rows(const DayRange& days) const
{
    QStringList parts;
    std::vector<Piece> pieces{{days, {}}};
    for (const TotalsLevel& level : m_levels) {
        if (const auto whole = takeWhole(level, pieces); !whole.empty())
            parts.append(part(level.totals, whole, u"in"_s));
    }
    parts.append(part(m_table, pieces, u"not in"_s));
    return u'(' + parts.join(u" union all "_s) + u')';
}

/// Splits pieces into the whole times of a level and the days before and after them, which can be none.
/// @return the whole times of all pieces.
std::vector<TotalsQuery::Piece> TotalsQuery::takeWhole(const TotalsLevel& level, std::vector<Piece>& pieces)
{
    std::vector<Piece> whole;
    std::vector<Piece> rest;
    for (const auto& [days, keys] : pieces) {
        const auto times = wholeTimes(level, days);
        const QStringList outside = keys + QStringList(QString());
        rest.push_back(
            {{days.first, times.isEmpty() ? days.last : times.first().first.addDays(-1)}, outside});
        for (const DayRange& time : times)
            whole.push_back({time, keys + QStringList(keyOfTotals(time.first))});
        if (!times.isEmpty())
            rest.push_back({{times.last().last.addDays(1), days.last}, outside});
    }
    pieces = std::move(rest);
    pieces.insert(pieces.end(), whole.begin(), whole.end());
    return whole;
}

/// @param isListed "in" or "not in": how the last key is compared with the list of its level.
QString TotalsQuery::part(const QString& table, const std::vector<Piece>& pieces,
                          const QString& isListed) const
{
    QStringList rows;
    for (const auto& [days, keys] : pieces) {
        QStringList row{quoted(days.first), quoted(days.last)};
        for (const QString& key : keys)
            row.append(quoted(key));
        rows.append(u'(' + row.join(u", "_s) + u')');
    }
    QStringList conditions;
    const qsizetype levels = pieces.front().keys.size();
    for (qsizetype level = 0; level < levels; ++level) {
        conditions.append(u"column%1 %2 (%3)"_s.arg(level + 3).arg(
            level + 1 == levels ? isListed : u"not in"_s, m_levels[static_cast<std::size_t>(level)].entries));
    }
    return u"select %1 from (select * from (values %2)%3) p cross join %4 where %5 between p.column1 and "
           "p.column2"_s.arg(m_columns, rows.join(u", "_s),
                             conditions.isEmpty() ? QString() : u" where "_s + conditions.join(u" and "_s),
                             bracketed(table), m_day);
}

} // namespace norvane::store
