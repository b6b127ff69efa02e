// What an import and an export of the PLU file cost beside the least that could do the work: a loop that
// splits, converts and binds into one prepared insert, and one that selects and writes.
#include "bench/Memory.h"
#include "bench/Shop.h"
#include "platform/RuntimeFailure.h"
#include "records/FileProcedures.h"
#include "tests/support/RecordingBoxes.h"

#include <benchmark/benchmark.h>
#include <QDir>
#include <QFile>

#include <array>
#include <charconv>
#include <cstring>
#include <fstream>

namespace
{

using namespace norvane;
using bench::BareDatabase;
using bench::bindText;
using bench::columnText;
using bench::compare;
using bench::measureMemory;
using bench::require;

constexpr int pluFile = 67;
constexpr std::size_t columnCount = 22;

/// What all rows add up to: a fast run that loses rows fails.
struct Sums {
    std::int64_t rows = 0;
    std::int64_t status = 0;
    std::int64_t cents = 0;
    std::int64_t flags = 0;
    bool operator==(const Sums&) const = default;
};

std::string zeroFilled(std::int64_t number, std::size_t width)
{
    const auto digits = std::to_string(number);
    return std::string(width - digits.size(), '0') + digits;
}

/// The text of @p lines PLUs, and what they add up to.
std::string pluText(int lines, Sums& sums)
{
    std::string text;
    for (int i = 0; i < lines; ++i) {
        text += bench::pluNumber(5000000000000LL + i * 7LL) + ",Article " + zeroFilled(i, 8) + ',';
        text += zeroFilled(i % 99, 2) + ',' + zeroFilled(i % 500, 4) + ",0000,0001," + zeroFilled(i % 30, 4);
        text += i % 2 == 0 ? ",45," : ",20,";
        text += "0000," + zeroFilled(i % 100, 4) + ",000000000000000000,0000";
        for (int price = 1; price <= 5; ++price) {
            const int cents = (i * 31 + price * 17) % 100000;
            text += ',' + zeroFilled(cents, 8) + ',' + zeroFilled(price, 2);
            sums.cents += cents;
        }
        text += "\r\n";
        sums.status += i % 500;
        sums.flags += i % 2 == 0 ? 3 : 1;
    }
    sums.rows = lines;
    return text;
}

/// A folder with a database and the text of so many PLUs.
class Shop : public bench::TwinShop
{
public:
    explicit Shop(int lines) : text(pluText(lines, sums))
    {
        std::ofstream(path("67.txt"), std::ios::binary) << text;
        std::ofstream(path("setup.ini")) << "[SetupOption]\nECRModel=0\n";
        QDir::setCurrent(folder());
    }
    ~Shop() { QDir::setCurrent(QDir::rootPath()); }
    Shop(const Shop&) = delete;
    Shop& operator=(const Shop&) = delete;

    [[nodiscard]] std::string path(const char* name) const { return file(name).toStdString(); }
    [[nodiscard]] records::ProcedureContext context()
    {
        return {values, boxes, [](const records::Conversion&) {
                    return true;
                }};
    }

    test::RecordingBoxes boxes;
    Sums sums;
    std::string text;
};

constexpr const char* bareInsert =
    "insert into PLUDATA (PLUNUMBER,DESCRIPTION,GROUPNO,PLUSTATUS,WLUNUMBER,PIECECOUNT,RECIPENO,MIXNMATCH,"
    "PRODUCTMIX,STOCKLINK,MODIFIER,PRICE1,PRICELEVEL1,PRICE2,PRICELEVEL2,PRICE3,PRICELEVEL3,PRICE4,"
    "PRICELEVEL4,PRICE5,PRICELEVEL5,INactive,PRESET,OVERRIDE,pricechange,printNV) "
    "values (?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?,?)";

/// How the bare loop binds each column of the text.
enum class Bare { Text, Whole, Long, Cents, Options };
constexpr std::array<Bare, columnCount> bareColumns{
    Bare::Text,  Bare::Text,  Bare::Whole, Bare::Whole, Bare::Whole, Bare::Whole, Bare::Whole, Bare::Options,
    Bare::Whole, Bare::Whole, Bare::Long,  Bare::Whole, Bare::Cents, Bare::Whole, Bare::Cents, Bare::Whole,
    Bare::Cents, Bare::Whole, Bare::Cents, Bare::Whole, Bare::Cents, Bare::Whole};
constexpr int firstFlag = 22;

std::int64_t toWhole(std::string_view text)
{
    std::int64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

void bindCents(sqlite3_stmt* statement, int place, std::string_view text)
{
    const auto cents = toWhole(text);
    std::array<char, 32> buffer{};
    const int size = std::snprintf(buffer.data(), buffer.size(), "%lld.%02lld",
                                   static_cast<long long>(cents / 100), static_cast<long long>(cents % 100));
    bindText(statement, place, {buffer.data(), static_cast<std::size_t>(size)});
}

void bindOptions(sqlite3_stmt* statement, std::string_view text)
{
    const int left = text[0] - '0';
    const int right = text[1] - '0';
    int place = firstFlag;
    for (const int flag : {left & 4, left & 2, left & 1, right & 4, right & 1})
        sqlite3_bind_int(statement, place++, flag != 0 ? -1 : 0);
}

void bindColumn(sqlite3_stmt* statement, Bare form, int place, std::string_view text)
{
    switch (form) {
    case Bare::Text:
        return bindText(statement, place, text);
    case Bare::Whole:
        sqlite3_bind_int64(statement, place, toWhole(text));
        return;
    case Bare::Long:
        return bindText(statement, place,
                        text.substr(std::min(text.find_first_not_of('0'), text.size() - 1)));
    case Bare::Cents:
        return bindCents(statement, place, text);
    case Bare::Options:
        return bindOptions(statement, text);
    }
}

void bareImport(const Shop& shop)
{
    const BareDatabase database(shop.bareDatabase());
    database.run("begin");
    database.run("delete from PLUDATA");
    std::ifstream file(shop.path("67.txt"), std::ios::binary);
    sqlite3_stmt* insert = database.prepare(bareInsert);
    for (std::string line; std::getline(file, line, '\n');) {
        line.pop_back();
        std::string_view rest = line;
        int place = 1;
        for (const Bare form : bareColumns) {
            const auto comma = rest.find(',');
            bindColumn(insert, form, place, rest.substr(0, comma));
            place += form == Bare::Options ? 0 : 1;
            rest.remove_prefix(comma == std::string_view::npos ? rest.size() : comma + 1);
        }
        bench::runOnce(insert);
    }
    sqlite3_finalize(insert);
    database.run("commit");
}

constexpr const char* bareSelect =
    "select PLUNUMBER,DESCRIPTION,GROUPNO,PLUSTATUS,WLUNUMBER,PIECECOUNT,RECIPENO,"
    "INactive,PRESET,OVERRIDE,pricechange,printNV,MIXNMATCH,PRODUCTMIX,STOCKLINK,MODIFIER,PRICE1,PRICELEVEL1,"
    "PRICE2,PRICELEVEL2,PRICE3,PRICELEVEL3,PRICE4,PRICELEVEL4,PRICE5,PRICELEVEL5 from PLUDATA order by "
    "PLUNUMBER";

void appendFilled(std::string& line, std::string_view text, std::size_t width)
{
    line.append(width > text.size() ? width - text.size() : 0, '0').append(text).push_back(',');
}

void appendWhole(std::string& line, std::int64_t number, std::size_t width)
{
    std::array<char, 24> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    appendFilled(line, {buffer.data(), static_cast<std::size_t>(end - buffer.data())}, width);
}

std::int64_t centsOf(std::string_view text)
{
    const auto point = text.find('.');
    std::int64_t cents = toWhole(text.substr(0, point)) * 100;
    if (point != std::string_view::npos) {
        std::string fraction(text.substr(point + 1));
        fraction.resize(2, '0');
        cents += toWhole(fraction);
    }
    return cents;
}

void bareExport(const Shop& shop)
{
    const BareDatabase database(shop.database());
    std::ofstream file(shop.path("bare.txt"), std::ios::binary);
    sqlite3_stmt* select = database.prepare(bareSelect);
    std::string line;
    while (sqlite3_step(select) == SQLITE_ROW) {
        const auto whole = [&](int place, std::size_t width) {
            appendWhole(line, sqlite3_column_int64(select, place), width);
        };
        const auto flag = [&](int place, int weight) {
            return sqlite3_column_int(select, place) == -1 ? weight : 0;
        };
        line.clear();
        appendFilled(line, columnText(select, 0), 18);
        line += columnText(select, 1);
        line.append(16 - std::min<std::size_t>(16, columnText(select, 1).size()), ' ') += ',';
        whole(2, 2);
        for (const int place : {3, 4, 5, 6})
            whole(place, 4);
        line += std::to_string(flag(7, 4) + flag(8, 2) + flag(9, 1));
        line += std::to_string(flag(10, 4) + flag(11, 1)) + ',';
        whole(12, 4);
        whole(13, 4);
        appendFilled(line, columnText(select, 14), 18);
        whole(15, 4);
        for (int place = 16; place < 26; place += 2) {
            appendWhole(line, centsOf(columnText(select, place)), 8);
            whole(place + 1, 2);
        }
        line.back() = '\r';
        line += '\n';
        file << line;
    }
    sqlite3_finalize(select);
}

Sums sumsOf(const QString& path)
{
    const BareDatabase database(path);
    sqlite3_stmt* select = database.prepare(
        "select count(*), sum(PLUSTATUS), cast(round(sum(100*(PRICE1+PRICE2+PRICE3+PRICE4+PRICE5))) as int),"
        "sum((INactive<>0)+(PRESET<>0)+(OVERRIDE<>0)+(pricechange<>0)+(printNV<>0)) from PLUDATA");
    require(sqlite3_step(select) == SQLITE_ROW, "sums");
    const Sums sums{sqlite3_column_int64(select, 0), sqlite3_column_int64(select, 1),
                    sqlite3_column_int64(select, 2), sqlite3_column_int64(select, 3)};
    sqlite3_finalize(select);
    return sums;
}

/// As compare(), and the cost of a line.
template <typename Ours, typename Bare>
void compareLines(benchmark::State& state, Ours ours, Bare bare)
{
    const double seconds = compare(state, ours, bare);
    state.counters["us_per_line"] = seconds * 1e6 / static_cast<double>(state.range(0));
}

void importPlus(benchmark::State& state)
{
    Shop shop(static_cast<int>(state.range(0)));
    compareLines(
        state, [&] { records::importRegisterFile(pluFile, shop.context()); }, [&] { bareImport(shop); });
    require(sumsOf(shop.database()) == shop.sums, "the import lost rows");
    require(sumsOf(shop.bareDatabase()) == shop.sums, "the bare loop lost rows");
}

void exportPlus(benchmark::State& state)
{
    Shop shop(static_cast<int>(state.range(0)));
    records::importRegisterFile(pluFile, shop.context());
    compareLines(
        state, [&] { records::exportRegisterFile(pluFile, shop.context()); }, [&] { bareExport(shop); });
    const auto contentOf = [&shop](const char* name) {
        QFile file(QString::fromStdString(shop.path(name)));
        require(file.open(QIODevice::ReadOnly), name);
        return file.readAll().toStdString();
    };
    require(contentOf("67.txt") == shop.text, "the export is not what was imported");
    require(contentOf("bare.txt") == shop.text, "the bare export is not what was imported");
}

void importMemory(benchmark::State& state)
{
    Shop shop(static_cast<int>(state.range(0)));
    measureMemory(state, shop.text.size(), [&shop] { records::importRegisterFile(pluFile, shop.context()); });
    require(sumsOf(shop.database()) == shop.sums, "the import lost rows");
}

/// A damaged file: one column of so many bytes, in the place of a text, of a number and of option digits.
void refuseGarbage(benchmark::State& state)
{
    Shop shop(1);
    const std::string garbage(static_cast<std::size_t>(state.range(0)), '9');
    const auto column = static_cast<std::size_t>(state.range(1));
    std::ofstream(shop.path("67.txt"), std::ios::binary) << std::string(column - 1, ',') + garbage;
    measureMemory(state, garbage.size(), [&shop] {
        try {
            records::importRegisterFile(pluFile, shop.context());
        } catch (const RuntimeFailure& failure) {
            require(failure.text().size() < 250, "the message shows it all");
            return;
        }
        require(false, "garbage was stored");
    });
}

} // namespace

BENCHMARK(importPlus)->Arg(1000)->Arg(10000)->Arg(100000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(exportPlus)->Arg(1000)->Arg(10000)->Arg(100000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(importMemory)->Arg(100000)->Iterations(3)->Unit(benchmark::kMillisecond);
BENCHMARK(refuseGarbage)
    ->Args({10'000'000, 2})
    ->Args({10'000'000, 3})
    ->Args({10'000'000, 8})
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
