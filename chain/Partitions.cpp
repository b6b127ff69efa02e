// See Partitions.h.
#include "chain/Partitions.h"

#include "chain/ChainTables.h"
#include "platform/Dates.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace norvane::chain
{
namespace
{

/// Attaching a table takes a lock that readers and writers do not mind, whereas CREATE TABLE ... PARTITION OF
/// waits for all of them and lets nobody in meanwhile. The constraint proves that the rows fit; afterwards
/// the bounds of the partition say the same, so it is dropped.
/// %1 are the names of the tables.
constexpr auto monthFunction = R"(
CREATE OR REPLACE FUNCTION make_month(of_day date) RETURNS void LANGUAGE plpgsql
SECURITY DEFINER SET search_path = norvane, pg_temp AS $$
DECLARE
  first date := date_trunc('month', of_day::timestamp)::date;
  next date := (first + interval '1 month')::date;
  parent text;
  part text;
BEGIN
  -- The login of a shop has the years that a shop keeps: each month is a table for everybody.
  IF of_day NOT BETWEEN '1990-01-01' AND '2199-12-31'
     OR NOT pg_has_role(session_user, current_user, 'USAGE')
        AND of_day NOT BETWEEN current_date - 4400 AND current_date + 100 THEN
    RAISE EXCEPTION 'no month is made for %', of_day USING ERRCODE = 'datetime_field_overflow';
  END IF;
  PERFORM pg_advisory_xact_lock(20086, 0);
  FOREACH parent IN ARRAY '{%1}'::text[] LOOP
    part := parent || to_char(first, '_YYYY_MM');
    CONTINUE WHEN EXISTS (SELECT FROM pg_catalog.pg_class
                          WHERE relnamespace = 'norvane'::regnamespace AND relname = part);
    EXECUTE format('CREATE TABLE %I (LIKE %I INCLUDING ALL, CONSTRAINT of_month CHECK (day >= %L AND day < %L))',
                   part, parent, first, next);
    EXECUTE format('ALTER TABLE %I ATTACH PARTITION %I FOR VALUES FROM (%L) TO (%L)',
                   parent, part, first, next);
    EXECUTE format('ALTER TABLE %I DROP CONSTRAINT of_month', part);
  END LOOP;
END $$)"_L1;

/// A shop keeps the sales of some years; the bounds are those of the function.
constexpr int firstYear = 1990;
constexpr int lastYear = 2199;

/// "plu_sales,time_sales" and so on.
QString tableNames()
{
    QStringList all;
    for (const auto& table : salesTables())
        all << QLatin1StringView(table.name);
    return all.join(u',');
}

[[noreturn]] void failWrongClock(QDate day)
{
    throw ChainError(ChainFailure::BadRows, u"%1 is too long ago, or too far ahead, for the chain: was the "
                                            "clock of a register wrong?"_s.arg(day.toString(Qt::ISODate)));
}

/// Whether the month of a date @p day has a partition of each sales table.
std::string hasMonth(const std::string& day)
{
    return "(SELECT count(*) = " + std::to_string(salesTables().size()) +
           " FROM pg_catalog.pg_class JOIN unnest('{" + tableNames().toStdString() +
           "}'::text[]) parent ON relname = parent || to_char(" + day +
           ", '_YYYY_MM') WHERE relnamespace = 'norvane'::regnamespace)";
}

/// Of this month and the next two.
std::vector<QDate> missingMonths(Server& server)
{
    std::vector<QDate> months;
    server.transact([&](pqxx::work& work) {
        for (const auto& row :
             work.exec("SELECT m::date FROM generate_series(date_trunc('month', current_date::timestamp), "
                       "current_date + interval '2 months', '1 month') m WHERE NOT " +
                       hasMonth("m")))
            months.push_back(QDate::fromString(QString::fromUtf8(row[0].c_str()), Qt::ISODate));
    });
    return months;
}

void makeMonth(Server& server, QDate day)
{
    server.transact([&](pqxx::work& work) { work.exec_params1("SELECT make_month($1)", isoDay(day)); });
}

} // namespace

std::vector<std::string> partitionFunctions()
{
    return {QString(monthFunction).arg(tableNames()).toStdString(),
            "REVOKE ALL ON FUNCTION make_month(date) FROM PUBLIC"};
}

void requireChainDay(QDate day)
{
    if (day.year() < firstYear || day.year() > lastYear)
        failWrongClock(day);
}

void makePartitions(Server& server, QDate day)
{
    requireChainDay(day);
    bool isMade = false;
    // Without a lock, unlike making them.
    server.transact([&](pqxx::work& work) {
        isMade = work.exec_params1("SELECT " + hasMonth("$1::date"), isoDay(day))[0].as<bool>();
    });
    if (isMade)
        return;
    try {
        makeMonth(server, day);
    } catch (const ChainError& error) {
        // The function is stricter with the login of a shop.
        if (error.failure() == ChainFailure::BadRows)
            failWrongClock(day);
        throw;
    }
}

void makeMonthsAhead(Server& server)
{
    try {
        for (const QDate month : missingMonths(server))
            makeMonth(server, month);
    } catch (const ChainError& error) {
        if (error.failure() != ChainFailure::Busy)
            throw;
    }
}

} // namespace norvane::chain
