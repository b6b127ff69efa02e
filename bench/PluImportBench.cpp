// Imports a file of 100,000 PLUs, of which nine in ten are known and get new prices, beside a bare loop:
// split the lines, look each PLU up by a prepared select, store by a prepared update or insert, in one
// transaction. The checks, the list of differences and all mistakes are ours alone; printing the list is not
// measured.
#include "articles/SheetUpdate.h"
#include "bench/Memory.h"
#include "bench/Shop.h"

#include <benchmark/benchmark.h>
#include <QFile>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using bench::BareDatabase;
using bench::require;

constexpr int pluCount = 100000;
constexpr int prices = 5;

/// Two databases with the same PLUs: ours, and one for the bare loop.
class Shop : public bench::TwinShop
{
public:
    Shop()
    {
        for (const QString& path : {database(), bareDatabase()})
            fill(path);
    }

    void dropNewPlus() const
    {
        for (const QString& path : {database(), bareDatabase()})
            BareDatabase(path).run("delete from PLUDATA where GROUPNO = 0");
    }
    void checkSums() const
    {
        require(sum(database()) > 0 && sum(database()) == sum(bareDatabase()), "all prices imported");
    }

private:
    static void fill(const QString& path)
    {
        const std::string rows =
            "insert into PLUDATA (PLUNUMBER, DESCRIPTION, GROUPNO, PRICE1, PRICE2, PRICE3, PRICE4, PRICE5) " +
            bench::numbersTo(pluCount) +
            "select printf('%018d', i), 'ARTICLE ' || i, 1, '0.1', '0.1', '0.1', '0.1', '0.1' from n "
            "where i % 10 > 0";
        BareDatabase(path).run(rows.c_str());
    }
    [[nodiscard]] static double sum(const QString& path)
    {
        return BareDatabase(path).number(
            "select sum(round(100 * (PRICE1 + PRICE2 + PRICE3 + PRICE4 + PRICE5))) from PLUDATA");
    }
};

/// A file as a spreadsheet writes it; each round has other prices.
QByteArray fileOf(int round)
{
    QByteArray file = "Number,Description,Price 1,Price 2,Price 3,Price 4,Price 5\r\n"_ba;
    for (int plu = 1; plu <= pluCount; ++plu) {
        const QByteArray number = QByteArray::number(plu);
        file += number + ",ARTICLE " + number;
        for (int price = 1; price <= prices; ++price) {
            file += ',' + QByteArray::number(plu % 900 + price) + '.' +
                    QByteArray::number(11 + (round + plu) % 8 * 11);
        }
        file += "\r\n";
    }
    return file;
}

/// The cells of a line, which is taken off @p text.
std::array<std::string_view, prices + 2> takeLine(std::string_view& text)
{
    std::array<std::string_view, prices + 2> cells;
    std::string_view line = text.substr(0, text.find("\r\n"));
    text.remove_prefix(line.size() + 2);
    for (auto& cell : cells) {
        cell = line.substr(0, line.find(','));
        line.remove_prefix(std::min(cell.size() + 1, line.size()));
    }
    return cells;
}

/// The bare loop's statements.
struct Statements {
    sqlite3_stmt* select;
    sqlite3_stmt* update;
    sqlite3_stmt* insert;
};

void bareStore(const Statements& statements, std::string_view& text)
{
    const auto cells = takeLine(text);
    const std::string number = std::string(18 - cells[0].size(), '0').append(cells[0]);
    bench::bindText(statements.select, 1, number);
    const bool isKnown = sqlite3_step(statements.select) == SQLITE_ROW;
    sqlite3_reset(statements.select);
    sqlite3_stmt* const write = isKnown ? statements.update : statements.insert;
    bench::bindText(write, 1, number);
    for (int column = 1; column < prices + 2; ++column)
        bench::bindText(write, column + 1, cells.at(static_cast<std::size_t>(column)));
    bench::runOnce(write);
}

void bareImport(const QString& path, const QByteArray& file)
{
    const BareDatabase database(path);
    database.run("begin");
    const Statements statements{
        database.prepare("select DESCRIPTION, PRICE1, PRICE2, PRICE3, PRICE4, PRICE5 from PLUDATA "
                         "where PLUNUMBER=?"),
        database.prepare("update PLUDATA set DESCRIPTION=?2, PRICE1=?3, PRICE2=?4, PRICE3=?5, PRICE4=?6, "
                         "PRICE5=?7 where PLUNUMBER=?1"),
        database.prepare(
            "insert into PLUDATA (PLUNUMBER, DESCRIPTION, PRICE1, PRICE2, PRICE3, PRICE4, PRICE5, "
            "GROUPNO) values (?1, ?2, ?3, ?4, ?5, ?6, ?7, 0)")};
    std::string_view text(file.constData(), static_cast<std::size_t>(file.size()));
    takeLine(text);
    while (!text.empty())
        bareStore(statements, text);
    for (sqlite3_stmt* const statement : {statements.select, statements.update, statements.insert})
        sqlite3_finalize(statement);
    database.run("commit");
}

void ourImport(const QString& path, const QByteArray& file)
{
    store::Database database(path);
    const articles::TableSheet sheet = articles::pluSheet();
    const articles::SheetComparison comparison(database, sheet, file);
    require(comparison.mistakes().isEmpty() && comparison.changeCount() == pluCount, "every line differs");
    articles::applySheetChanges(database, comparison);
}

void PluImport(benchmark::State& state)
{
    const Shop shop;
    const std::array files{fileOf(0), fileOf(1), fileOf(2)};
    std::size_t round = 0;
    bench::compare(
        state, [&] { ourImport(shop.database(), files.at(round)); },
        [&] {
            shop.dropNewPlus();
            round = (round + 1) % files.size();
            bareImport(shop.bareDatabase(), files.at(round));
        });
    shop.checkSums();
}
BENCHMARK(PluImport)->UseManualTime()->Iterations(6)->Unit(benchmark::kMillisecond);

/// Of the text, its comparison and the storing.
void PluImportMemory(benchmark::State& state)
{
    const Shop shop;
    const QByteArray content = fileOf(0);
    QFile file(shop.database() + u".csv"_s);
    require(file.open(QIODevice::ReadWrite) && file.write(content) == content.size() && file.reset(), "file");
    bench::measureMemory(state, static_cast<std::size_t>(content.size()),
                         [&] { ourImport(shop.database(), file.readAll()); });
}
BENCHMARK(PluImportMemory)->Iterations(1);

} // namespace

BENCHMARK_MAIN();
