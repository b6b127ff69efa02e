// Ten years of a shop's days in the sales tables: appending a day, reading by date, and reports over a day, a
// week, a month and a year, beside what a bare statement takes. A run makes one year; NORVANE_SALES_YEARS=10
// makes them all, in some minutes and five gigabytes of the temporary folder. Times are processor times.
#include "bench/GrowingShop.h"
#include "store/sales/SalesTotals.h"

#include <benchmark/benchmark.h>
#include <QFileInfo>

#include <algorithm>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using bench::require;

constexpr int plusPerDay = bench::GrowingShop::plusPerDay;
constexpr int daysPerYear = bench::GrowingShop::daysPerYear;
constexpr int daysPerMonth = 30;
/// Days appended by one run of the benchmark of appending.
constexpr int appendedDays = 10;

/// What the file keeps beside the rows of sales.
enum class Keeps { Totals, Index, Nothing };

/// The tables with or without what the file keeps.
QVector<store::TableDefinition> tablesFor(Keeps keeps)
{
    auto tables = store::catalogue();
    if (keeps == Keeps::Nothing) {
        for (auto& table : tables)
            table.searchedField.clear();
    }
    return tables;
}

/// A database that only grows, day by day.
class GrowingShop : public bench::GrowingShop
{
public:
    explicit GrowingShop(Keeps keeps) : bench::GrowingShop(tablesFor(keeps))
    {
        if (keeps == Keeps::Index) {
            for (const char* event : {"insert", "update", "delete"}) {
                bench::BareDatabase(database())
                    .run((std::string("drop trigger [PLUSALES ") + event + ']').c_str());
            }
        }
        m_open = std::make_unique<store::Database>(database());
    }

    [[nodiscard]] store::Database& open() { return *m_open; }
    [[nodiscard]] qint64 fileSize() const { return QFileInfo(database()).size(); }

    void growTo(int wanted)
    {
        while (days() < wanted)
            appendDay(*m_open);
    }

private:
    std::unique_ptr<store::Database> m_open;
};

/// The shops live through the whole run, so that each year is made once.
GrowingShop& shop(Keeps keeps)
{
    static GrowingShop withTotals(Keeps::Totals);
    static GrowingShop withIndex(Keeps::Index);
    static GrowingShop without(Keeps::Nothing);
    return keeps == Keeps::Totals ? withTotals : keeps == Keeps::Index ? withIndex : without;
}

GrowingShop& shopOf(const benchmark::State& state, Keeps keeps)
{
    GrowingShop& grown = shop(keeps);
    grown.growTo(static_cast<int>(state.range(0)));
    return grown;
}

void appendDay(benchmark::State& state, Keeps keeps)
{
    GrowingShop& grown = shopOf(state, keeps);
    while (state.KeepRunning())
        grown.appendDay(grown.open());
    constexpr double megabyte = 1024.0 * 1024.0;
    state.counters["file_mb"] = static_cast<double>(grown.fileSize()) / megabyte;
}

QString dateWord(QDate day)
{
    return day.toString(u"'#'M/d/yyyy'#'"_s);
}

/// All records of one day some way back, one by one.
void readDay(benchmark::State& state, Keeps keeps)
{
    GrowingShop& grown = shopOf(state, keeps);
    const QString query =
        u"select * from PLUSALES where SALESDATE = %1"_s.arg(dateWord(grown.dayBefore(daysPerMonth / 2)));
    while (state.KeepRunning()) {
        store::Recordset sales = grown.open().openQuery(query);
        int rows = 0;
        for (; !sales.atEnd(); sales.moveNext()) {
            benchmark::DoNotOptimize(sales.value(0));
            ++rows;
        }
        require(rows == plusPerDay, "all records of the day");
    }
}

/// The totals of each PLU from some day to the last, as a report adds them up.
void addUp(benchmark::State& state, Keeps keeps, int days)
{
    GrowingShop& grown = shopOf(state, keeps);
    const QString query = u"select ID, count(*) as DAYS, sum(COUNT1) as SOLD from PLUSALES "
                          "where SALESDATE >= %1 and SALESDATE <= %2 group by ID"_s.arg(
                              dateWord(grown.dayBefore(days - 1)), dateWord(grown.dayBefore(0)));
    while (state.KeepRunning()) {
        store::Recordset totals = grown.open().openQuery(query);
        require(totals.value(1).toNumber() == days, "all days of the period");
        int plus = 0;
        for (; !totals.atEnd(); totals.moveNext())
            ++plus;
        require(plus == plusPerDay, "all PLUs");
    }
}

void addUpMonth(benchmark::State& state, Keeps keeps)
{
    addUp(state, keeps, daysPerMonth);
}

void addUpYear(benchmark::State& state, Keeps keeps)
{
    addUp(state, keeps, daysPerYear);
}

/// A period that ends on the last day.
struct Period {
    const char* name;
    QDate (*first)(QDate last);
};
constexpr Period periods[] = {
    {"day",
     [](QDate last) {
         return last;
     }},
    {"weekToDate",
     [](QDate last) {
         return last.addDays(-(last.dayOfWeek() % Qt::Sunday));
     }},
    {"monthToDate",
     [](QDate last) {
         return QDate(last.year(), last.month(), 1);
     }},
    {"yearToDate",
     [](QDate last) {
         return QDate(last.year(), 1, 1);
     }},
};

constexpr const char* numbers[] = {"PROMO",  "WASTE",  "COUNT1", "VALUE1", "COUNT2", "VALUE2",
                                   "COUNT3", "VALUE3", "COUNT4", "VALUE4", "COUNT5", "VALUE5"};

QString sums(const char* aggregate)
{
    QStringList all;
    for (const char* number : numbers)
        all << u"%1(%2)"_s.arg(QLatin1StringView(aggregate), QLatin1StringView(number));
    return all.join(u", "_s);
}

/// The totals of every PLU, line by line, exact.
void readReport(store::Database& database, const store::DayRange& days)
{
    const store::SalesTotals totals(database, u"PLUSALES"_s);
    store::Recordset lines =
        database.openQuery(u"select ID, %1 from %2 group by ID"_s.arg(sums("exact_sum"), totals.rows(days)));
    int plus = 0;
    for (; !lines.atEnd(); lines.moveNext()) {
        for (int field = 0; field < lines.fieldCount(); ++field)
            benchmark::DoNotOptimize(lines.value(field));
        ++plus;
    }
    require(plus == plusPerDay, "all PLUs");
}

/// The same rows and months in one statement of the engine's own, which adds up doubles.
std::string bareStatement(const store::DayRange& days)
{
    const QString columns = sums("").remove(u'(').remove(u')');
    const auto part = [&columns](const char* table, QDate first, QDate last) {
        return u"select ID, %1 from %2 where SALESDATE between '%3' and '%4'"_s.arg(
            columns, QLatin1StringView(table), first.toString(Qt::ISODate), last.toString(Qt::ISODate));
    };
    const QDate month(days.last.year(), days.last.month(), 1);
    QString source = part("PLUSALES", std::max(days.first, month), days.last);
    if (days.first < month) {
        source +=
            u" union all "_s + (days.first.day() == 1
                                    ? part("norvane_month_totals_PLUSALES", days.first, month.addDays(-1))
                                    : part("PLUSALES", days.first, month.addDays(-1)));
    }
    return u"select ID, %1 from (%2) group by ID"_s.arg(sums("sum"), source).toStdString();
}

void readBare(const bench::BareDatabase& database, const std::string& sql)
{
    sqlite3_stmt* const lines = database.prepare(sql.c_str());
    int plus = 0;
    for (; sqlite3_step(lines) == SQLITE_ROW; ++plus) {
        for (int column = 0; column < sqlite3_column_count(lines); ++column)
            benchmark::DoNotOptimize(sqlite3_column_double(lines, column));
    }
    sqlite3_finalize(lines);
    require(plus == plusPerDay, "all PLUs of the bare statement");
}

void readPeriod(benchmark::State& state, const Period& period)
{
    GrowingShop& grown = shopOf(state, Keeps::Totals);
    const store::DayRange days{period.first(grown.dayBefore(0)), grown.dayBefore(0)};
    require(store::SalesTotals(grown.open(), u"PLUSALES"_s).addUpMissing(days, days.last), "totals");
    const bench::BareDatabase bare(grown.database());
    bench::compare(
        state, [&] { readReport(grown.open(), days); }, [&] { readBare(bare, bareStatement(days)); });
}

/// What the first collection of a month adds to its time.
void totalMonth(benchmark::State& state)
{
    GrowingShop& grown = shopOf(state, Keeps::Totals);
    const QDate last = grown.dayBefore(0);
    store::SalesTotals totals(grown.open(), u"PLUSALES"_s);
    const QDate month(last.year(), last.month(), 1);
    while (state.KeepRunning())
        totals.addUp({month.addMonths(-1), month.addDays(-1)});
}

constexpr int reads = 3;

void registerPeriods(int days)
{
    for (const Period& period : periods) {
        benchmark::RegisterBenchmark((std::string("report/") + period.name).c_str(), readPeriod, period)
            ->Arg(days)
            ->Iterations(reads)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::RegisterBenchmark("totalMonth", totalMonth)
        ->Arg(days)
        ->Iterations(reads)
        ->Unit(benchmark::kMillisecond);
}

/// Appending is measured last: it changes the number of days of the shop.
void registerAll(int years)
{
    std::vector<int> sizes{daysPerMonth, daysPerYear};
    for (const int later : {5, 10}) {
        if (later <= years)
            sizes.push_back(later * daysPerYear);
    }
    const auto add = [](const char* what, auto measure, int days, int runs,
                        const std::vector<std::pair<Keeps, const char*>>& shops) {
        for (const auto& [keeps, name] : shops) {
            benchmark::RegisterBenchmark((std::string(what) + name).c_str(), measure, keeps)
                ->Arg(days)
                ->Iterations(runs)
                ->Unit(benchmark::kMillisecond);
        }
    };
    const std::vector<std::pair<Keeps, const char*>> indexOrNot{{Keeps::Index, "/indexed"},
                                                                {Keeps::Nothing, "/unindexed"}};
    for (const int days : sizes) {
        add("readDay", readDay, days, reads, indexOrNot);
        add("addUpMonth", addUpMonth, days, reads, indexOrNot);
        if (days >= daysPerYear)
            add("addUpYear", addUpYear, days, reads, indexOrNot);
        registerPeriods(days);
        add("appendDay", appendDay, days, appendedDays,
            {{Keeps::Totals, "/totals"}, {Keeps::Index, "/indexed"}, {Keeps::Nothing, "/unindexed"}});
    }
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    registerAll(bench::salesYears(1));
    benchmark::RunSpecifiedBenchmarks();
}
