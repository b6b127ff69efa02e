// Finding and walking among 100,000 PLUs, beside a prepared select.
#include "bench/Shop.h"
#include "store/catalogue/DatabaseCheck.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Recordset.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <array>
#include <memory>
#include <string>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using bench::require;

constexpr int pluCount = 100000;
constexpr int batch = 1000;

/// Numbers that are a multiple of 10, so that a search for one between lands on the next.
std::string pluNumber(int number)
{
    return bench::pluNumber(number * 10LL);
}

class Shop : public bench::Shop
{
public:
    Shop()
    {
        store::Database open(database());
        const store::CommitOnExit transaction(open);
        store::Recordset plus = open.openTable(u"PLUDATA"_s);
        for (int number = 1; number <= pluCount; ++number) {
            plus.addNew();
            plus.setValue(u"PLUNUMBER"_s, store::Value::text(pluNumber(number)));
            plus.setValue(u"DESCRIPTION"_s, store::Value::text("Article " + std::to_string(number)));
            plus.setValue(u"PRICE1"_s, store::Value::text(std::string("12.34")));
            for (const char* field : {"GROUPNO", "PLUSTATUS", "WLUNUMBER", "MIXNMATCH", "PRICELEVEL1"})
                plus.setValue(QString::fromLatin1(field), store::Value::whole(number % 99));
            plus.update();
        }
    }
};

const Shop& shop()
{
    static const Shop shop;
    return shop;
}

/// A prepared select on a separate connection that reads every column of the row it finds.
class BareSelect
{
public:
    BareSelect() = default;
    ~BareSelect() { sqlite3_finalize(m_select); }
    BareSelect(const BareSelect&) = delete;
    BareSelect& operator=(const BareSelect&) = delete;

    /// The number of the PLU found.
    std::string find(const std::string& number)
    {
        sqlite3_bind_text(m_select, 1, number.data(), static_cast<int>(number.size()), SQLITE_STATIC);
        require(sqlite3_step(m_select) == SQLITE_ROW, "a bare search in vain");
        std::string found;
        for (int column = 0; column < sqlite3_column_count(m_select); ++column) {
            switch (sqlite3_column_type(m_select, column)) {
            case SQLITE_TEXT: {
                std::string text(reinterpret_cast<const char*>(sqlite3_column_text(m_select, column)));
                if (column == 0)
                    found = text;
                benchmark::DoNotOptimize(text);
                break;
            }
            case SQLITE_INTEGER:
                benchmark::DoNotOptimize(sqlite3_column_int64(m_select, column));
                break;
            default:
                break;
            }
        }
        sqlite3_reset(m_select);
        return found;
    }

private:
    bench::BareDatabase m_database{shop().database()};
    sqlite3_stmt* m_select =
        m_database.prepare("select * from PLUDATA where PLUNUMBER >= ? order by PLUNUMBER limit 1");
};

/// Numbers all over the table, each of which is missed by a little.
std::string soughtNumber(int step)
{
    std::string number = pluNumber(1 + step * 7919 % (pluCount - 1));
    number.back() = '1';
    return number;
}

std::string nextNumber(const std::string& sought)
{
    return pluNumber(std::stoi(sought.substr(0, sought.size() - 1)) + 1);
}

void seekAtOrAfter(benchmark::State& state)
{
    store::Database database(shop().database());
    store::Recordset plus = database.openTable(u"PLUDATA"_s);
    BareSelect bare;
    int step = 0;
    const auto ours = [&] {
        for (int i = 0; i < batch; ++i) {
            const std::string sought = soughtNumber(step++);
            require(plus.seek(store::Seek::AtOrAfter, store::Value::text(sought)), "found");
            require(plus.value(0).textView() == nextNumber(sought), "the next PLU");
        }
    };
    int bareStep = 0;
    bench::compare(state, ours, [&] {
        for (int i = 0; i < batch; ++i) {
            const std::string sought = soughtNumber(bareStep++);
            require(bare.find(sought) == nextNumber(sought), "the next PLU, bare");
        }
    });
}

/// From a closed file to a record that was looked up.
void openSeekRead(benchmark::State& state)
{
    const std::string number = pluNumber(pluCount / 2);
    while (state.KeepRunning()) {
        store::Database database(shop().database());
        store::Recordset plus = database.openTable(u"PLUDATA"_s);
        require(plus.seek(store::Seek::AtOrAfter, store::Value::text(number)), "found");
        for (int field = 0; field < plus.fieldCount(); ++field)
            benchmark::DoNotOptimize(plus.value(field).toText());
    }
}

/// The look for damage at the choice of a customer, with so many rows of sales beside the PLUs.
void checkForDamage(benchmark::State& state)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(u"velmar.mdb"_s);
    require(QFile::copy(shop().database(), path), "copy");
    {
        store::Database database(path);
        const store::CommitOnExit transaction(database);
        store::Recordset sales = database.openTable(u"PLUSALES"_s);
        for (std::int64_t row = 0; row < state.range(0); ++row) {
            sales.addNew();
            sales.setValue(u"ID"_s, store::Value::text(pluNumber(static_cast<int>(row % pluCount))));
            sales.setValue(u"SALESDATE"_s, store::Value::date(QDate(2020, 1, 1).addDays(row / 1000)));
            for (const char* field : {"PROMO", "WASTE"})
                sales.setValue(QString::fromLatin1(field), store::Value::whole(0));
            sales.update();
        }
    }
    while (state.KeepRunning())
        require(store::damageOf(path).isEmpty(), "damaged");
    state.counters["megabytes"] = static_cast<double>(QFileInfo(path).size()) / 1e6;
}

/// Steps from a place in the table, given in percent of it.
void walk(benchmark::State& state, bool forward)
{
    store::Database database(shop().database());
    store::Recordset plus = database.openTable(u"PLUDATA"_s);
    const int place = 1 + static_cast<int>(state.range(0)) * (pluCount - 1) / 100;
    while (state.KeepRunning()) {
        state.PauseTiming();
        require(plus.seek(store::Seek::AtOrAfter, store::Value::text(pluNumber(place))), "found");
        state.ResumeTiming();
        for (int step = 0; step < 100; ++step)
            forward ? plus.moveNext() : plus.movePrevious();
        require(plus.value(0).textView() == pluNumber(forward ? place + 100 : place - 100), "a hundred on");
    }
    state.SetItemsProcessed(state.iterations() * 100);
}

void next(benchmark::State& state)
{
    walk(state, true);
}

void previous(benchmark::State& state)
{
    walk(state, false);
}

} // namespace

BENCHMARK(seekAtOrAfter)->UseManualTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(openSeekRead)->Unit(benchmark::kMicrosecond);
BENCHMARK(checkForDamage)->Arg(0)->Arg(100'000)->Arg(2'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(next)->Arg(1)->Arg(50)->Arg(99)->Unit(benchmark::kMicrosecond);
BENCHMARK(previous)->Arg(1)->Arg(50)->Arg(99)->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
