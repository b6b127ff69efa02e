// See ReportQuery.h.
#include "reports/lines/ReportQuery.h"

#include "platform/RuntimeFailure.h"
#include "reports/lines/KeyNames.h"
#include "reports/lines/LayoutFields.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/ShortWait.h"

#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
ReportQuery::ReportQuery(const ReportRequest& request, const ReportLayout& layout, const KeepGoing& keepGoing)
    : m_layout(layout), m_keepGoing(keepGoing), m_showStep(request.showStep), m_dataFile(request.dataFile),
      m_database(request.dataFile),
      m_records(request.records ? request.records : std::make_shared<RecordCache>())
{
    checkTables();
}

void ReportQuery::checkTables() const
{
    QVector<const store::TableDefinition*> tables{m_layout.source.table};
    for (const auto& join : m_layout.joins)
        tables.append(join.table);
    for (const auto* table : tables) {
        if (!m_database.hasTable(table->name))
            throw ReportError(u"%1: the database has no table %2."_s.arg(m_dataFile, table->name));
    }
    for (const auto& field : m_layout.source.fields) {
        if (store::fieldNamed(m_database.table(field.table->name), field.name()) == nullptr)
            throw ReportError(u"%1: the database has no field %2."_s.arg(m_dataFile, field.text()));
    }
}

void ReportQuery::select(const Condition& condition, QDate today)
{
    m_condition = condition;
    m_today = today;
}

void ReportQuery::run(const LineSource& source, const std::function<void(const LineFields&)>& take)
{
    if (hasFewRecords(recordJoinOf(source, m_layout.joins, m_condition)))
        return runByRecords(source, take);
    runWhole(source, take);
}

void ReportQuery::runWhole(const LineSource& source, const std::function<void(const LineFields&)>& take)
{
    LineFields fields(source.fields.size());
    read(makeLineStatement(source, m_layout.joins, m_condition, monthRows(source)),
         [&](store::BoundQuery& query) {
             for (std::size_t i = 0; i < fields.size(); ++i)
                 fields[i] = query.value(static_cast<int>(i));
             take(fields);
         });
}

void ReportQuery::read(LineStatement statement, const std::function<void(store::BoundQuery&)>& take)
{
    store::BoundQuery query(m_database, statement.sql, std::move(statement.values), m_layout.path,
                            m_keepGoing);
    try {
        while (query.next())
            take(query);
    } catch (const RuntimeFailure&) {
        if (query.wasGivenUp())
            throw ReportCancelled();
        throw;
    }
}

/// The source of a statement that adds up totals of months in place of rows. It can when the selection asks
/// for days alone and the lines do not depend on the day. @return empty text when the rows must be read.
std::string ReportQuery::monthRows(const LineSource& source)
{
    const auto day = source.day();
    if (!source.addsUp() || !day || (source.isKey(*day) && !source.isByMonth) ||
        !isOnlyPeriod(m_condition, *day))
        return {};
    const auto period = periodOf(m_condition, *day);
    const auto needsRows = [&](const FieldName& field) {
        return !source.isKey(rootOf(m_layout, field));
    };
    if (!period || period->isOpen() || (source.where && mentions(*source.where, needsRows)))
        return {};
    store::SalesTotals totals(m_database, source.table->name);
    if (!totals.available())
        return {};
    const store::DayRange days{period->from, period->to};
    addUpMissing(totals, days);
    QStringList fields;
    for (const auto& field : source.fields) {
        if (field.table == source.table)
            fields.append(field.name());
    }
    for (const auto& key : source.keys) {
        if (!fields.contains(key.name()))
            fields.append(key.name());
    }
    using enum store::SalesTotals::Longest;
    return totals.rows(days, fields, source.isByMonth ? Month : Year).toStdString();
}

/// Another program that reads can keep the totals from being stored for any time. Reading the rows takes less
/// time than waiting for it, and a report has several queries that would each wait.
void ReportQuery::addUpMissing(store::SalesTotals& totals, const store::DayRange& days)
{
    if (!m_mayAddUp)
        return;
    const store::ShortWait wait(m_database);
    m_mayAddUp =
        totals.addUpMissing(days, m_today, [this](const store::DayRange& time) { return beginTotals(time); });
    if (!m_mayAddUp && m_showStep)
        m_showStep(u"Reading the sales day by day"_s);
}

/// A database without totals of months, as earlier versions made it, takes some seconds for each year, once.
bool ReportQuery::beginTotals(const store::DayRange& time) const
{
    const bool isMonth = time.first.month() == time.last.month();
    const QString words = QLocale().toString(time.first, isMonth ? u"MMMM yyyy"_s : u"yyyy"_s);
    if (m_showStep)
        m_showStep(u"Adding up the sales of %1"_s.arg(words));
    return !m_keepGoing || m_keepGoing();
}

std::optional<SalesDays> ReportQuery::salesDays(const Period& period)
{
    if (period.isOpen())
        return std::nullopt;
    return reports::salesDays(m_database, period, m_today, m_keepGoing);
}

void ReportQuery::readNames(const MoneyFormat& money)
{
    for (const auto& list : m_layout.nameLists)
        readList(*list, money);
}

/// Of several records with the same number the first counts.
void ReportQuery::readList(NameList& list, const MoneyFormat& money)
{
    if (!m_database.hasTable(list.name.table->name))
        return;
    if (list.isOfKeys()) {
        list.names = keysByPlu(m_database, m_dataFile, m_keepGoing);
        return;
    }
    const QString sql =
        u"SELECT \"%1\", \"%2\" FROM \"%3\""_s.arg(list.key.name(), list.name.name(), list.name.table->name);
    store::BoundQuery query(m_database, sql.toStdString(), {}, m_dataFile, m_keepGoing);
    while (query.next()) {
        const QString key = NameList::keyOf(query.value(0));
        const store::Value& name = query.value(1);
        if (list.names.contains(key))
            continue;
        list.names.insert(key, name.isDouble() ? dressed(shownNumber(Decimal::fromDouble(name.toNumber()),
                                                                     money.decimals, money.decimals),
                                                         {true, money.currency})
                                               : name.toText().trimmed());
    }
}

} // namespace norvane::reports
