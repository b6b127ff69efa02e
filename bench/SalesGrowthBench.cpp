// Ten years of a shop's days in the sales tables: appending a day and reading by date, with the engine's
// index on the day and without it. A run makes one year; NORVANE_SALES_YEARS=10 makes them all, in some
// minutes and four gigabytes of the temporary folder.
#include "bench/Ratio.h"
#include "store/Catalogue.h"
#include "store/Database.h"
#include "store/Recordset.h"

#include <benchmark/benchmark.h>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using bench::require;
using store::Value;

constexpr int plusPerDay = 5000;
constexpr int daysPerYear = 365;
constexpr int daysPerMonth = 30;
/// Days appended by one run of the benchmark of appending.
constexpr int appendedDays = 10;

std::string pluNumber(int number)
{
    const auto digits = std::to_string(number);
    return std::string(18 - digits.size(), '0') + digits;
}

/// A database that only grows, day by day.
class GrowingShop
{
public:
    explicit GrowingShop(bool indexed)
    {
        auto tables = store::catalogue();
        if (!indexed) {
            for (auto& table : tables)
                table.searchedField.clear();
        }
        store::Database::create(path(), tables);
        m_database = std::make_unique<store::Database>(path());
    }

    [[nodiscard]] store::Database& database() { return *m_database; }
    [[nodiscard]] qint64 fileSize() const { return QFileInfo(path()).size(); }
    /// The day that is so many days before the last one.
    [[nodiscard]] QDate dayBefore(int days) const { return first().addDays(m_days - 1 - days); }

    void growTo(int days)
    {
        while (m_days < days)
            appendDay();
    }

    /// One collection: the day's totals of all PLUs, on the disk at the end.
    void appendDay()
    {
        store::Transaction transaction(*m_database);
        store::Recordset sales = m_database->openTable(u"PLUSALES"_s);
        const auto ordinal = [&sales](const char* field) {
            return sales.fieldOrdinal(QLatin1StringView(field));
        };
        const std::array<int, 6> fields{ordinal("ID"),    ordinal("SALESDATE"), ordinal("PROMO"),
                                        ordinal("WASTE"), ordinal("COUNT1"),    ordinal("VALUE1")};
        const Value day = Value::date(first().addDays(m_days));
        for (int plu = 0; plu < plusPerDay; ++plu) {
            const int count = (plu * 31 + m_days * 7) % 50;
            sales.addNew();
            sales.setValue(fields[0], Value::text(pluNumber(plu)));
            sales.setValue(fields[1], store::Value(day));
            sales.setValue(fields[2], Value::whole(0));
            sales.setValue(fields[3], Value::whole(0));
            sales.setValue(fields[4], Value::whole(count));
            sales.setValue(fields[5], Value::number(count * 1.25));
            sales.update();
        }
        transaction.commit();
        ++m_days;
    }

private:
    [[nodiscard]] static QDate first() { return {2017, 1, 1}; }
    [[nodiscard]] QString path() const { return m_folder.filePath(u"velmar.mdb"_s); }

    QTemporaryDir m_folder;
    std::unique_ptr<store::Database> m_database;
    int m_days = 0;
};

/// Both shops live through the whole run, so that each year is made once.
GrowingShop& shop(bool indexed)
{
    static GrowingShop withIndex(true);
    static GrowingShop without(false);
    return indexed ? withIndex : without;
}

GrowingShop& shopOf(const benchmark::State& state, bool indexed)
{
    GrowingShop& grown = shop(indexed);
    grown.growTo(static_cast<int>(state.range(0)));
    return grown;
}

void appendDay(benchmark::State& state, bool indexed)
{
    GrowingShop& grown = shopOf(state, indexed);
    while (state.KeepRunning())
        grown.appendDay();
    constexpr double megabyte = 1024.0 * 1024.0;
    state.counters["file_mb"] = static_cast<double>(grown.fileSize()) / megabyte;
}

QString dateWord(QDate day)
{
    return day.toString(u"'#'M/d/yyyy'#'"_s);
}

/// All records of one day some way back, one by one.
void readDay(benchmark::State& state, bool indexed)
{
    GrowingShop& grown = shopOf(state, indexed);
    const QString query =
        u"select * from PLUSALES where SALESDATE = %1"_s.arg(dateWord(grown.dayBefore(daysPerMonth / 2)));
    while (state.KeepRunning()) {
        store::Recordset sales = grown.database().openQuery(query);
        int rows = 0;
        for (; !sales.atEnd(); sales.moveNext()) {
            benchmark::DoNotOptimize(sales.value(0));
            ++rows;
        }
        require(rows == plusPerDay, "all records of the day");
    }
}

/// The totals of each PLU from some day to the last, as a report adds them up.
void addUp(benchmark::State& state, bool indexed, int days)
{
    GrowingShop& grown = shopOf(state, indexed);
    const QString query = u"select ID, count(*) as DAYS, sum(COUNT1) as SOLD from PLUSALES "
                          "where SALESDATE >= %1 and SALESDATE <= %2 group by ID"_s.arg(
                              dateWord(grown.dayBefore(days - 1)), dateWord(grown.dayBefore(0)));
    while (state.KeepRunning()) {
        store::Recordset totals = grown.database().openQuery(query);
        require(totals.value(1).toNumber() == days, "all days of the period");
        int plus = 0;
        for (; !totals.atEnd(); totals.moveNext())
            ++plus;
        require(plus == plusPerDay, "all PLUs");
    }
}

void addUpMonth(benchmark::State& state, bool indexed)
{
    addUp(state, indexed, daysPerMonth);
}

void addUpYear(benchmark::State& state, bool indexed)
{
    addUp(state, indexed, daysPerYear);
}

/// In the order of the years, since the shops only grow.
void registerAll(int years)
{
    std::vector<int> sizes{daysPerMonth, daysPerYear};
    for (const int later : {5, 10}) {
        if (later <= years)
            sizes.push_back(later * daysPerYear);
    }
    const auto add = [](const char* what, auto measure, int days, int runs) {
        for (const bool indexed : {true, false}) {
            const std::string name = std::string(what) + (indexed ? "/indexed" : "/unindexed");
            benchmark::RegisterBenchmark(name.c_str(), measure, indexed)
                ->Arg(days)
                ->Iterations(runs)
                ->Unit(benchmark::kMillisecond);
        }
    };
    for (const int days : sizes) {
        constexpr int reads = 3;
        add("appendDay", appendDay, days, appendedDays);
        add("readDay", readDay, days, reads);
        add("addUpMonth", addUpMonth, days, reads);
        if (days >= daysPerYear)
            add("addUpYear", addUpYear, days, reads);
    }
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    registerAll(qEnvironmentVariableIntValue("NORVANE_SALES_YEARS"));
    benchmark::RunSpecifiedBenchmarks();
}
