// Converting a year of sales of the former program beside the least that could do it: mdb-export writes the
// same table to a file, and a loop binds as many rows into one prepared insert.
#include "bench/BareDatabase.h"
#include "bench/Ratio.h"
#include "former/Conversion.h"
#include "tests/support/FormerWriter.h"

#include <benchmark/benchmark.h>
#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using bench::require;
using test::FormerType, test::FormerWriter;

constexpr int plusPerDay = 320;
constexpr int days = 397;

QByteArray yearOfSales()
{
    test::FormerRows sales{
        u"PLUSALES"_s, {{u"ID"_s, FormerType::Text, 18}, {u"SALESDATE"_s, FormerType::Date}}, {}};
    for (const char* name : {"PROMO", "WASTE", "COUNT1", "VALUE1", "COUNT2", "VALUE2", "COUNT3", "VALUE3"})
        sales.columns.append({QString::fromLatin1(name), FormerType::Double});
    for (int day = 0; day < days; ++day) {
        const QDateTime date(QDate(2025, 10, 24).addDays(day), QTime(0, 0));
        for (int plu = 0; plu < plusPerDay; ++plu) {
            const double count = (day * 31 + plu) % 200;
            sales.rows.append({u"%1"_s.arg(1000 + plu, 18, 10, QChar(u'0')), date, 0.0, 0.0, count,
                               count * 2.35, 0.0, 0.0, 1.0, 2.6});
        }
    }
    FormerWriter writer;
    writer.add({u"PLUDATA"_s, {{u"PLUNUMBER"_s, FormerType::Text, 18}}, {{u"000000000000001001"_s}}});
    writer.add(sales);
    return writer.content();
}

void insertBare(const QString& path)
{
    QFile::remove(path);
    const bench::BareDatabase database(path);
    database.run(
        "create table PLUSALES (ID text, SALESDATE text, PROMO real, WASTE real, COUNT1 real, VALUE1 real, "
        "COUNT2 real, VALUE2 real, COUNT3 real, VALUE3 real)");
    database.run("begin");
    sqlite3_stmt* const insert = database.prepare(
        "insert into PLUSALES (ID, SALESDATE, PROMO, WASTE, COUNT1, VALUE1, COUNT2, VALUE2, COUNT3, VALUE3) "
        "values (?, '2026-01-01', 0, 0, ?, ?, 0, 0, 1, 2.6)");
    for (int row = 0; row < plusPerDay * days; ++row) {
        bench::bindText(insert, 1, std::to_string(1000 + row % plusPerDay));
        sqlite3_bind_double(insert, 2, row % 200);
        sqlite3_bind_double(insert, 3, row % 200 * 2.35);
        bench::runOnce(insert);
    }
    sqlite3_finalize(insert);
    database.run("commit");
}

void convertYearOfSales(benchmark::State& state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"velmar.mdb"_s);
    const QByteArray content = yearOfSales();
    const auto write = [&] {
        QFile file(path);
        require(file.open(QIODevice::WriteOnly) && file.write(content) == content.size(), "the former file");
    };
    // Both work in processes of their own too, so the clock counts and not the processor of this one.
    bench::compare(
        state,
        [&] {
            write();
            const auto found = former::examine(path, QStringLiteral(READER_FOLDER));
            const auto done = former::convertDatabase(folder.path(), QStringLiteral(READER_FOLDER), found);
            require(done.records == plusPerDay * days + 1, "all records are stored");
        },
        [&] {
            write();
            QProcess exporter;
            exporter.setStandardOutputFile(folder.filePath(u"export.csv"_s));
            exporter.start(u"mdb-export"_s, {path, u"PLUSALES"_s});
            require(exporter.waitForFinished(-1) && exporter.exitCode() == 0,
                    "mdb-export (package mdbtools)");
            insertBare(folder.filePath(u"bare.mdb"_s));
        });
}
BENCHMARK(convertYearOfSales)->Iterations(3)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
