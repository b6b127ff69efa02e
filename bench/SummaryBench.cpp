// The summary of a period on one page, from the formula to its lines, for a shop with 5,000 PLUs, all reports
// collected every day. A run makes two years of sales; NORVANE_SALES_YEARS=10 makes ten, in some minutes and
// three gigabytes of the temporary folder.
#include "bench/Shop.h"
#include "reports/formula/Period.h"
#include "reports/lines/ReportRun.h"
#include "store/sales/SalesTotals.h"

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using bench::BareDatabase;
using bench::require;

/// A row for each of @p count items on each day up to the end of 2026.
std::string rowsOf(const char* table, const char* values, int count, int days)
{
    const std::string last = std::to_string(days);
    return "; insert into " + std::string(table) + " " + bench::numbersTo(days) +
           ", p(k) as (select 1 union all select k + 1 from p where k < " + std::to_string(count) +
           ") select " + values + " from (select i, k, date('2026-12-31', '-' || (" + last +
           " - i) || ' days') as day from n, p)";
}

std::string everything(int plus, int years)
{
    const int days = years * 365;
    return "insert into PLUDATA (PLUNUMBER, DESCRIPTION, GROUPNO) " + bench::numbersTo(plus) +
           "select printf('%018d', i), 'ARTICLE ' || i, i % 50 from n; "
           "insert into GROUPS (GROUPNO, DESCRIPTION) " +
           bench::numbersTo(49) + "select i, 'GROUP ' || i from n" +
           rowsOf("PLUSALES (ID, SALESDATE, PROMO, WASTE, COUNT1, VALUE1)",
                  "printf('%018d', k), day, 0, 0, (k * 31 + i * 7) % 50, ((k * 31 + i * 7) % 50) * 1.25",
                  plus, days) +
           rowsOf("TIMESALES (ID, SALESDATE, QUANTITY, VALUE)", "k, day, k, k * 1.25", 24, days) +
           rowsOf("FINANCIALSALES (ID, SALESDATE, QUANTITY, VALUE)", "k, day, k, k * 1.25", 80, days) +
           rowsOf("CLERKSALES (ID, CLERKID, SALESDATE, QUANTITY, VALUE)",
                  "k % 40, k / 40 + 1, day, k, k * 1.25", 400, days);
}

class Shop : public bench::Shop
{
public:
    using bench::Shop::Shop;

    [[nodiscard]] reports::ReportData run(const store::DayRange& days, reports::ComparedWith with) const
    {
        reports::ReportRequest request;
        request.reportFile = QStringLiteral(REPORT_FILES "/daysummary.rpt");
        request.dataFile = database();
        request.selectionFormula =
            reports::formulaOf(u"{PLUSALES.SALESDATE}"_s, {days.first, days.last, QString()});
        request.now = QDateTime({2027, 1, 1}, QTime(20, 0));
        request.comparedWith = with;
        return reports::runReport(request, [] { return true; });
    }
};

struct PeriodOfSummary {
    const char* name;
    store::DayRange days;
    reports::ComparedWith with = reports::ComparedWith::Nothing;
};

/// The value of each PLU alone, in binary numbers.
void addUpBare(const BareDatabase& bare, const std::string& rows)
{
    sqlite3_stmt* const select =
        bare.prepare(("select ID, sum(VALUE1) from " + rows + " group by ID").c_str());
    double total = 0;
    while (sqlite3_step(select) == SQLITE_ROW)
        total += sqlite3_column_double(select, 1);
    sqlite3_finalize(select);
    require(total > 0, "something was sold");
}

void SummaryOfPeriod(benchmark::State& state)
{
    static const Shop shop(everything(5000, bench::salesYears(2)));
    const QDate first = QDate(2026, 12, 31).addDays(1 - 365 * bench::salesYears(2));
    const PeriodOfSummary periods[] = {
        {"day", {{2026, 12, 31}, {2026, 12, 31}}},
        {"month", {{2026, 12, 1}, {2026, 12, 31}}},
        {"year", {{2026, 1, 1}, {2026, 12, 31}}},
        {"year and the one before", {{2026, 1, 1}, {2026, 12, 31}}, reports::ComparedWith::PeriodBefore},
        {"all days", {first, {2026, 12, 31}}},
    };
    const auto& [name, days, with] = periods[state.range(0)];
    state.SetLabel(name);
    (void)shop.run(days, with); // adds up ended months, as the import does
    std::string rows;
    {
        store::Database database(shop.database());
        rows = store::SalesTotals(database, u"PLUSALES"_s).rows(days).toStdString();
    }
    const BareDatabase bare(shop.database());
    bench::compare(
        state, [&] { require(shop.run(days, with).blocks.size() > 10, "all blocks are there"); },
        [&] { addUpBare(bare, rows); });
}
BENCHMARK(SummaryOfPeriod)->DenseRange(0, 4)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
