// Adding up months and the queries that read them; see MonthTotals.h.
#include "store/sales/MonthTotals.h"

#include "platform/RuntimeFailure.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/Companions.h"
#include "store/engine/Connection.h"
#include "store/engine/Database.h"
#include "store/engine/PreparedStatement.h"
#include "store/engine/Savepoint.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

/// The engine joins some hundred selects at most. No shop has sales of more months.
constexpr qsizetype mostMonths = 400;

QDate lastOfMonth(QDate first)
{
    return first.addMonths(1).addDays(-1);
}

/// The first days of the months that are completely inside.
QVector<QDate> wholeMonths(const DayRange& days)
{
    QVector<QDate> months;
    QDate month(days.first.year(), days.first.month(), 1);
    if (month < days.first)
        month = month.addMonths(1);
    for (; lastOfMonth(month) <= days.last; month = month.addMonths(1))
        months.append(month);
    return months;
}

Value dayValue(QDate day)
{
    return Value::date(day);
}

Value monthValue(QDate month)
{
    return Value::text(month.toString(u"yyyy-MM"_s));
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

void run(sqlite3* handle, const std::string& sql, const QString& table, const std::vector<Value>& values)
{
    PreparedStatement statement(handle, sql, table);
    for (int i = 0; i < static_cast<int>(values.size()); ++i)
        statement.bind(i + 1, values[static_cast<std::size_t>(i)]);
    statement.run();
}

QString bracketed(const QString& name)
{
    return u'[' + name + u']';
}

/// One member of a union: the wanted columns of some days.
class SourcePart
{
public:
    SourcePart(QString columns, QString day) : m_columns(std::move(columns)), m_day(std::move(day)) {}

    [[nodiscard]] QString of(const QString& table, const DayRange& days) const
    {
        return u"select %1 from %2 where %3 between '%4' and '%5'"_s.arg(m_columns, bracketed(table), m_day,
                                                                         days.first.toString(Qt::ISODate),
                                                                         days.last.toString(Qt::ISODate));
    }

private:
    QString m_columns;
    QString m_day;
};

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

} // namespace

MonthTotals::MonthTotals(Database& database, const QString& table)
    : m_connection(connectionOf(database)), m_table(salesTable(database.table(table))),
      m_available(Schema(m_connection.handle()).hasAll(monthCompanionsOf(m_table)))
{
}

QVector<QDate> MonthTotals::missing(const DayRange& days, QDate today) const
{
    if (!m_available)
        return {};
    PreparedStatement isMissing(
        m_connection.handle(),
        "SELECT NOT EXISTS (SELECT 1 FROM " + quotedName(addedMonthsName(m_table.name)) +
            " WHERE month = ?1) AND EXISTS (SELECT 1 FROM " + quotedName(m_table.name) + " WHERE " +
            quotedName(m_table.searchedField) + " BETWEEN ?2 AND ?3)",
        m_table.name);
    QVector<QDate> months = wholeMonths({days.first, std::min(days.last, today.addDays(-1))});
    months.removeIf([&isMissing](QDate month) {
        const Value values[] = {monthValue(month), dayValue(month), dayValue(lastOfMonth(month))};
        const StatementRun run(isMissing);
        for (int i = 0; i < static_cast<int>(std::size(values)); ++i)
            isMissing.bind(i + 1, values[i]);
        return !isMissing.step() || isMissing.whole(0) == 0;
    });
    return months;
}

void MonthTotals::addUp(QDate month)
{
    sqlite3* handle = m_connection.handle();
    const std::string months = quotedName(addedMonthsName(m_table.name));
    const std::string totals = quotedName(monthTotalsName(m_table.name));
    const std::string day = quotedName(m_table.searchedField);
    Savepoint savepoint(handle);
    run(handle, "DELETE FROM " + months + " WHERE month = ?", m_table.name, {monthValue(month)});
    run(handle,
        "INSERT INTO " + totals + " SELECT " + joined(m_table.fields, totalOf) + " FROM " +
            quotedName(m_table.name) + " WHERE " + day + " BETWEEN ?1 AND ?2 GROUP BY " +
            joined(m_table.fields, groupWords),
        m_table.name, {dayValue(month), dayValue(lastOfMonth(month))});
    run(handle, "INSERT INTO " + months + " VALUES (?)", m_table.name, {monthValue(month)});
    savepoint.keep();
}

bool MonthTotals::addUpMissing(const DayRange& days, QDate today, const std::function<bool(QDate)>& step)
{
    try {
        for (const QDate month : missing(days, today)) {
            if (step && !step(month))
                return false;
            addUp(month);
        }
        return true;
    } catch (const RuntimeFailure&) {
        return false;
    }
}

QString MonthTotals::rows(const DayRange& days, const QStringList& fields) const
{
    QStringList columns;
    for (const auto& field : m_table.fields) {
        if (fields.isEmpty() || fields.contains(field.name, Qt::CaseInsensitive))
            columns.append(bracketed(field.name));
    }
    const SourcePart part(columns.join(u", "_s), bracketed(m_table.searchedField));
    const auto months = m_available ? wholeMonths(days) : QVector<QDate>();
    if (months.isEmpty() || months.size() > mostMonths)
        return u'(' + part.of(m_table.name, days) + u')';
    QStringList parts{part.of(monthTotalsName(m_table.name), {months.first(), months.last()})};
    // The query itself looks which months have totals, so it never reads a month twice or not at all.
    for (const QDate month : months) {
        parts.append(part.of(m_table.name, {month, lastOfMonth(month)}) +
                     u" and not exists (select 1 from %1 where month = '%2')"_s.arg(
                         bracketed(addedMonthsName(m_table.name)), monthValue(month).toText()));
    }
    if (days.first < months.first())
        parts.append(part.of(m_table.name, {days.first, months.first().addDays(-1)}));
    if (lastOfMonth(months.last()) < days.last)
        parts.append(part.of(m_table.name, {lastOfMonth(months.last()).addDays(1), days.last}));
    return u'(' + parts.join(u" union all "_s) + u')';
}

} // namespace norvane::store
