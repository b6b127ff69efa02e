// Reports from the formula to their lines: a list of 100,000 PLUs, and periods of a shop with 5,000 PLUs that
// collects every day. A run makes two years of sales; NORVANE_SALES_YEARS=10 makes ten, in some minutes and
// three gigabytes of the temporary folder.
#include "bench/Shop.h"
#include "reports/lines/RecordRows.h"
#include "reports/lines/ReportRun.h"
#include "store/sales/SalesTotals.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using bench::BareDatabase;
using bench::require;

class Shop : public bench::Shop
{
public:
    using bench::Shop::Shop;

    [[nodiscard]] reports::ReportData run(const char* layout, const QString& formula = {},
                                          reports::ComparedWith with = {},
                                          QDate today = QDate(2026, 12, 19)) const
    {
        reports::ReportRequest request;
        request.reportFile = QStringLiteral(REPORT_FILES "/") + QLatin1StringView(layout);
        request.dataFile = database();
        request.selectionFormula = formula;
        request.comparedWith = with;
        request.records = m_records;
        request.now = QDateTime(today, QTime(20, 0));
        return reports::runReport(request, [] { return true; });
    }

private:
    std::shared_ptr<reports::RecordCache> m_records = std::make_shared<reports::RecordCache>();
};

std::string programme(int plus)
{
    return "insert into PLUDATA (PLUNUMBER, DESCRIPTION, GROUPNO, PRICE1, PRICE2, PRICE3, PRICE4, PRICE5) " +
           bench::numbersTo(plus) +
           "select printf('%018d', i), 'ARTICLE ' || i, i % 50, '1.25', '2.50', '3.75', '4.99', '0.10' from "
           "n; "
           "insert into GROUPS (GROUPNO, DESCRIPTION) " +
           bench::numbersTo(49) + "select i, 'GROUP ' || i from n";
}

/// Every PLU has a row every day up to the end of 2026, most of them with sales.
std::string sales(int plus, int years)
{
    const int days = years * 365;
    return programme(plus) + "; insert into PLUSALES " + bench::numbersTo(days) +
           ", p(k) as (select 1 union all select k + 1 from p where k < " + std::to_string(plus) +
           ") select printf('%018d', k), date('2026-12-31', '-' || (" + std::to_string(days) +
           " - i) || ' days'), 0, 0, (k * 31 + i * 7) % 50, ((k * 31 + i * 7) % 50) * 1.25, 0, 0, 0, 0, 0, "
           "0, 0, 0 "
           "from n, p";
}

void ListOfPlus(benchmark::State& state)
{
    constexpr int plus = 100'000;
    const Shop shop(programme(plus));
    double text = 0;
    double held = 0;
    for (auto _ : state) {
        const auto before = mallinfo2().uordblks + mallinfo2().hblkhd;
        const auto data = shop.run("pluprice.rpt");
        held = static_cast<double>(mallinfo2().uordblks + mallinfo2().hblkhd - before);
        require(data.lineCount() == plus && data.columnCount() == 8, "all PLUs are listed");
        state.PauseTiming();
        text = 0;
        for (qsizetype line = 0; line < data.lineCount(); ++line) {
            for (int column = 0; column < data.columnCount(); ++column)
                text += static_cast<double>(data.text(line, column).size());
        }
        state.ResumeTiming();
    }
    state.counters["bytes_a_line"] = held / plus;
    state.counters["characters_a_line"] = text / plus;
}
BENCHMARK(ListOfPlus)->Unit(benchmark::kMillisecond);

struct PeriodOfSales {
    const char* name;
    QString formula;
    store::DayRange days;
};

/// A minimal statement for the sales: without names and exact sums.
void addUpBare(const BareDatabase& bare, const std::string& rows)
{
    const std::string sql =
        "select ID, sum(PROMO), sum(WASTE), sum(COUNT1), sum(VALUE1), sum(COUNT2), sum(VALUE2), "
        "sum(COUNT3), sum(VALUE3), sum(COUNT4), sum(VALUE4), sum(COUNT5), sum(VALUE5) from " +
        rows + " group by ID";
    sqlite3_stmt* const select = bare.prepare(sql.c_str());
    double total = 0;
    while (sqlite3_step(select) == SQLITE_ROW)
        total += sqlite3_column_double(select, 4);
    sqlite3_finalize(select);
    require(total > 0, "something was sold");
}

const Shop& longShop()
{
    static const Shop shop(sales(5000, bench::salesYears(2)));
    return shop;
}

void PeriodReport(benchmark::State& state)
{
    const Shop& shop = longShop();
    const QString day = u"{PLUSALES.SALESDATE} "_s;
    const PeriodOfSales periods[] = {
        {"day", day + u"= date(2026,12,19)"_s, {{2026, 12, 19}, {2026, 12, 19}}},
        {"week", day + u"in WeekToDateFromSun"_s, {{2026, 12, 13}, {2026, 12, 19}}},
        {"month", day + u"in monthtodate"_s, {{2026, 12, 1}, {2026, 12, 19}}},
        {"year", day + u"in YearToDate"_s, {{2026, 1, 1}, {2026, 12, 19}}},
    };
    const auto& period = periods[state.range(0)];
    state.SetLabel(period.name);
    (void)shop.run("plusales.rpt", period.formula); // adds up ended months, as the import does
    std::string rows;
    {
        store::Database database(shop.database());
        rows = store::SalesTotals(database, u"PLUSALES"_s).rows(period.days).toStdString();
    }
    const BareDatabase bare(shop.database());
    bench::compare(
        state,
        [&] { require(shop.run("plusales.rpt", period.formula).lineCount() > 4000, "all PLUs have a line"); },
        [&] { addUpBare(bare, rows); });
}
BENCHMARK(PeriodReport)->DenseRange(0, 3)->UseManualTime()->Unit(benchmark::kMillisecond);

/// A report over a period, from the formula to its lines.
struct TimedReport {
    const char* label;
    const char* layout;
    const char* days; ///< of the formula
    reports::ComparedWith with = reports::ComparedWith::Nothing;
};

void AnyReport(benchmark::State& state)
{
    using enum reports::ComparedWith;
    constexpr TimedReport timed[] = {
        {"last month", "plusales.rpt", "in lastmonth"},
        {"last year", "plusales.rpt", "in lastyear"},
        {"a year from mid-month to mid-month", "plusales.rpt", "in date(2025,11,14) to date(2026,11,17)"},
        {"all years", "plusales.rpt", "in date(2017,1,2) to date(2026,12,18)"},
        {"ABC of last month", "abc.rpt", "in lastmonth"},
        {"ABC of last year", "abc.rpt", "in lastyear"},
        {"without sales, one day", "unsold.rpt", "= date(2026,12,19)"},
        {"groups of last year", "groupsales.rpt", "in lastyear"},
        {"last month and the one before", "plusales.rpt", "in lastmonth", PeriodBefore},
        {"last month and a year earlier", "plusales.rpt", "in lastmonth", YearEarlier},
        {"year to date and a year earlier", "plusales.rpt", "in YearToDate", YearEarlier},
        {"ABC, year to date and a year earlier", "abc.rpt", "in YearToDate", YearEarlier},
    };
    const TimedReport& report = timed[state.range(0)];
    state.SetLabel(report.label);
    const QString formula = u"{PLUSALES.SALESDATE} "_s + QLatin1StringView(report.days);
    const auto run = [&] {
        return longShop().run(report.layout, formula, report.with);
    };
    (void)run(); // adds up ended months, as the import does
    bench::Times times;
    for (auto _ : state)
        times.add([&] { require(run().heading.notice.isEmpty(), "there are lines"); });
    times.report(state);
}
BENCHMARK(AnyReport)->DenseRange(0, 11)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
