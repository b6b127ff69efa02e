// The import of a large shop's PLU report beside the least that could do it: a loop that splits at the
// commas, converts and binds into one prepared insert.
#include "bench/Shop.h"
#include "sales/PollImport.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <charconv>
#include <fstream>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using bench::BareDatabase;
using bench::require;

constexpr int recordCount = 100000;
/// ID, promotion and waste come before the count and the value of each price level.
constexpr int headValues = 3;
constexpr int levels = 4;
/// A poll file that carries the stamp of four levels at its place, and nothing else.
constexpr std::string_view stampFile("\0\0\0\0\x41", 5);

std::string pollText()
{
    std::string text;
    for (int record = 0; record < recordCount; ++record) {
        text += bench::pluNumber(5000000000000LL + record * 7LL) + ",0," + std::to_string(record % 3);
        for (int level = 1; level <= levels; ++level) {
            const int count = (record * 31 + level * 17) % 200;
            const auto cents = std::to_string(100 + count % 100);
            text += ',' + std::to_string(count) + ',' + std::to_string(count * level) + '.' + cents.substr(1);
        }
        text += "\r\n";
    }
    return text;
}

/// A report that was collected, and the databases of ours and of the bare loop to import it into.
class Shop : public bench::TwinShop
{
public:
    Shop()
    {
        write("poll194.txt", pollText());
        write("poll194.dll", stampFile);
    }
    [[nodiscard]] std::string path(const char* name) const { return file(name).toStdString(); }

private:
    void write(const char* name, std::string_view content) const
    {
        std::ofstream(path(name), std::ios::binary) << content;
    }
};

const sales::PollFile& pluReport()
{
    const auto all = sales::pollFiles();
    return *std::find_if(all.begin(), all.end(), [](const sales::PollFile& file) {
        return std::string_view(file.name) == "poll194.txt";
    });
}

constexpr const char* bareInsert =
    "insert into PLUSALES (SALESDATE, ID, PROMO, WASTE, COUNT1, VALUE1, COUNT2, VALUE2, COUNT3, VALUE3, "
    "COUNT4, "
    "VALUE4, COUNT5, VALUE5) values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, 0, 0)";

void bindNumber(sqlite3_stmt* statement, int place, std::string_view text)
{
    double number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    sqlite3_bind_double(statement, place, number);
}

void bareImport(const Shop& shop)
{
    const BareDatabase database(shop.bareDatabase());
    database.run("begin");
    sqlite3_stmt* insert = database.prepare(bareInsert);
    bench::bindText(insert, 1, "2026-11-24");
    std::ifstream file(shop.path("poll194.txt"), std::ios::binary);
    for (std::string line; std::getline(file, line);) {
        line.pop_back();
        std::string_view rest = line;
        for (int value = 0; value < headValues + 2 * levels; ++value) {
            const auto comma = rest.find(',');
            const auto text = rest.substr(0, comma);
            value == 0 ? bench::bindText(insert, 2, text) : bindNumber(insert, 2 + value, text);
            rest.remove_prefix(comma == std::string_view::npos ? rest.size() : comma + 1);
        }
        bench::runOnce(insert);
    }
    sqlite3_finalize(insert);
    database.run("commit");
}

double sumOf(const QString& path)
{
    return BareDatabase(path).number("select sum(COUNT1 + VALUE1 + COUNT4 + VALUE4 + WASTE) from PLUSALES "
                                     "where SALESDATE = '2026-11-24' and COUNT5 = 0");
}

void importPluReport(benchmark::State& state)
{
    const Shop shop;
    bench::compare(
        state,
        [&] {
            store::Database database(shop.database());
            sales::importPollFile(pluReport(), database, shop.values, {2026, 11, 24});
        },
        [&] { bareImport(shop); });
    const double rows = BareDatabase(shop.database()).number("select count(*) from PLUSALES");
    require(rows == static_cast<double>(state.iterations()) * recordCount, "all records became rows");
    require(sumOf(shop.database()) == sumOf(shop.bareDatabase()), "the same sales");
}

} // namespace

BENCHMARK(importPluReport)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
