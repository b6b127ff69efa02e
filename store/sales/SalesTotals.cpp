// Adding up months and years and the queries that read them; see SalesTotals.h.
#include "store/sales/SalesTotals.h"

#include "platform/RuntimeFailure.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/Connection.h"
#include "store/engine/Database.h"
#include "store/engine/PreparedStatement.h"
#include "store/engine/Savepoint.h"
#include "store/sales/TotalsQuery.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

Value dayValue(QDate day)
{
    return Value::date(day);
}

Value keyValue(QDate first)
{
    return Value::text(keyOfTotals(first));
}

std::string joined(const QVector<FieldDefinition>& fields, std::string (*wordsOf)(const FieldDefinition&))
{
    std::string all;
    for (const auto& field : fields) {
        if (const std::string words = wordsOf(field); !words.empty())
            all += (all.empty() ? "" : ", ") + words;
    }
    return all;
}

std::string totalOf(const FieldDefinition& field)
{
    if (isAddedUp(field))
        return "exact_total(" + quotedName(field.name) + ')';
    return field.type == FieldType::Date ? "?1" : quotedName(field.name);
}

/// Texts that differ only in case remain separate here; the report decides whether they are one item.
std::string groupWords(const FieldDefinition& field)
{
    if (isAddedUp(field) || field.type == FieldType::Date)
        return {};
    return quotedName(field.name) + (field.type == FieldType::Text ? " COLLATE BINARY" : "");
}

void run(sqlite3* handle, const std::string& sql, const QString& table, const Value& value)
{
    PreparedStatement statement(handle, sql, table);
    statement.bind(1, value);
    statement.run();
}

/// The catalogue knows by which field a table's rows are found; the file knows which fields it has.
TableDefinition salesTable(const TableDefinition& existing)
{
    const TableDefinition* known = catalogueTable(existing.name);
    if (known == nullptr || known->searchedField.isEmpty()) {
        throw RuntimeFailure(Failure::UnknownName,
                             u"Item not found: %1 is not a table of sales."_s.arg(existing.name));
    }
    TableDefinition table = existing;
    table.name = known->name;
    table.searchedField = known->searchedField;
    return table;
}

/// The levels for which the file has tables and triggers, the longest times first. Totals of years are right
/// only as long as those of months are.
std::vector<TotalsLevel> levelsOf(const TableDefinition& table, sqlite3* handle)
{
    const Schema schema(handle);
    if (!schema.hasAll(monthCompanionsOf(table)))
        return {};
    if (!schema.hasAll(yearCompanionsOf(table)))
        return {monthLevelOf(table.name)};
    return {yearLevelOf(table.name), monthLevelOf(table.name)};
}

} // namespace

SalesTotals::SalesTotals(Database& database, const QString& table)
    : m_connection(connectionOf(database)), m_table(salesTable(database.table(table))),
      m_levels(levelsOf(m_table, m_connection.handle()))
{
}

QVector<DayRange> SalesTotals::missing(const TotalsLevel& level, const DayRange& days) const
{
    PreparedStatement isMissing(m_connection.handle(),
                                "SELECT ?1 NOT IN (" + level.entries.toStdString() +
                                    ") AND EXISTS (SELECT 1 FROM " + quotedName(m_table.name) + " WHERE " +
                                    quotedName(m_table.searchedField) + " BETWEEN ?2 AND ?3)",
                                m_table.name);
    QVector<DayRange> times = wholeTimes(level, days);
    times.removeIf([&isMissing](const DayRange& time) {
        const Value values[] = {keyValue(time.first), dayValue(time.first), dayValue(time.last)};
        const StatementRun run(isMissing);
        for (int i = 0; i < static_cast<int>(std::size(values)); ++i)
            isMissing.bind(i + 1, values[i]);
        return !isMissing.step() || isMissing.whole(0) == 0;
    });
    return times;
}

QVector<DayRange> SalesTotals::missing(const DayRange& days, QDate today) const
{
    QVector<DayRange> times;
    const DayRange ended{days.first, std::min(days.last, today.addDays(-1))};
    std::for_each(m_levels.rbegin(), m_levels.rend(),
                  [&](const TotalsLevel& level) { times += missing(level, ended); });
    return times;
}

/// A year needs totals of all its months, also of those without rows: whatever changes a row of them drops
/// the month, and with it the year.
void SalesTotals::addUp(const DayRange& time)
{
    const auto level = std::ranges::find_if(
        m_levels, [&time](const TotalsLevel& each) { return !wholeTimes(each, time).isEmpty(); });
    if (level == m_levels.end())
        return;
    Savepoint savepoint(m_connection.handle());
    const std::span<const TotalsLevel> shorter(level + 1, m_levels.end());
    for (const TotalsLevel& each : shorter)
        addUpAbsent(each, time);
    addUp(*level, shorter, time);
    savepoint.keep();
}

void SalesTotals::addUpAbsent(const TotalsLevel& level, const DayRange& days)
{
    for (const DayRange& time : wholeTimes(level, days)) {
        PreparedStatement isListed(m_connection.handle(), "SELECT ? IN (" + level.entries.toStdString() + ')',
                                   level.list);
        const Value key = keyValue(time.first);
        isListed.bind(1, key);
        if (isListed.step() && isListed.whole(0) == 0) {
            isListed.reset();
            addUp(level, {}, time);
        }
    }
}

void SalesTotals::addUp(const TotalsLevel& level, std::span<const TotalsLevel> from, const DayRange& time)
{
    sqlite3* handle = m_connection.handle();
    const std::string list = quotedName(level.list);
    const std::string totals = quotedName(level.totals);
    run(handle, "DELETE FROM " + list + " WHERE month = ?", m_table.name, keyValue(time.first));
    run(handle, "DELETE FROM " + totals + " WHERE " + quotedName(m_table.searchedField) + " = ?",
        m_table.name, dayValue(time.first));
    run(handle,
        "INSERT INTO " + totals + " SELECT " + joined(m_table.fields, totalOf) + " FROM " +
            TotalsQuery(m_table, from, {}).rows(time).toStdString() + " GROUP BY " +
            joined(m_table.fields, groupWords),
        m_table.name, dayValue(time.first));
    run(handle, "INSERT INTO " + list + " VALUES (?)", m_table.name, keyValue(time.first));
}

bool SalesTotals::addUpMissing(const DayRange& days, QDate today,
                               const std::function<bool(const DayRange&)>& step)
{
    try {
        for (const DayRange& time : missing(days, today)) {
            if (step && !step(time))
                return false;
            addUp(time);
        }
        return true;
    } catch (const RuntimeFailure&) {
        return false;
    }
}

QString SalesTotals::rows(const DayRange& days, const QStringList& fields, Longest longest) const
{
    const std::size_t skipped = longest == Longest::Month && m_levels.size() > 1 ? 1 : 0;
    return TotalsQuery(m_table, std::span(m_levels).subspan(skipped), fields).rows(days);
}

} // namespace norvane::store
