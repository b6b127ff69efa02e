// See Partitions.h.
#include "chain/Partitions.h"

#include "platform/Dates.h"

namespace norvane::chain
{
namespace
{

/// Attaching a table takes a lock that readers and writers do not mind, whereas CREATE TABLE ... PARTITION OF
/// waits for all of them and lets nobody in meanwhile. The constraint proves that the rows fit; afterwards
/// the bounds of the partition say the same, so it is dropped.
constexpr const char* makeMonth = R"(
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
  FOR parent IN SELECT relname FROM pg_catalog.pg_class
                WHERE relnamespace = 'norvane'::regnamespace AND relkind = 'p' ORDER BY relname LOOP
    part := parent || to_char(first, '_YYYY_MM');
    CONTINUE WHEN EXISTS (SELECT FROM pg_catalog.pg_class
                          WHERE relnamespace = 'norvane'::regnamespace AND relname = part);
    EXECUTE format('CREATE TABLE %I (LIKE %I INCLUDING ALL, CONSTRAINT of_month CHECK (day >= %L AND day < %L))',
                   part, parent, first, next);
    EXECUTE format('ALTER TABLE %I ATTACH PARTITION %I FOR VALUES FROM (%L) TO (%L)',
                   parent, part, first, next);
    EXECUTE format('ALTER TABLE %I DROP CONSTRAINT of_month', part);
  END LOOP;
END $$)";

bool hasMonth(Server& server, QDate day)
{
    bool all = false;
    server.transact([&](pqxx::work& work) {
        // A partition of each partitioned table; without a lock, unlike making them.
        all = work.exec_params1("SELECT count(*) FILTER (WHERE relkind = 'p') = "
                                "count(*) FILTER (WHERE right(relname, 8) = to_char($1::date, '_YYYY_MM')) "
                                "FROM pg_catalog.pg_class WHERE relnamespace = 'norvane'::regnamespace "
                                "AND relkind IN ('p', 'r')",
                                isoDay(day))[0]
                  .as<bool>();
    });
    return all;
}

QDate today(Server& server)
{
    QDate day;
    server.transact([&](pqxx::work& work) {
        day = QDate::fromString(QString::fromUtf8(work.exec1("SELECT current_date::text")[0].c_str()),
                                Qt::ISODate);
    });
    return day;
}

} // namespace

std::vector<std::string> partitionFunctions()
{
    return {makeMonth, "REVOKE ALL ON FUNCTION make_month(date) FROM PUBLIC"};
}

void makePartitions(Server& server, QDate day)
{
    if (hasMonth(server, day))
        return;
    server.transact([&](pqxx::work& work) { work.exec_params1("SELECT make_month($1)", isoDay(day)); });
}

void makeMonthsAhead(Server& server)
{
    constexpr int monthsAhead = 2;
    const QDate now = today(server);
    try {
        for (int month = 0; month <= monthsAhead; ++month)
            makePartitions(server, now.addMonths(month));
    } catch (const ChainError& error) {
        if (error.failure() != ChainFailure::Busy)
            throw;
    }
}

} // namespace norvane::chain
