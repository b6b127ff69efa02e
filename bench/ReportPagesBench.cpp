// From a report's lines to what the user gets: the preview's first page, a PDF, a CSV. The CSV is written
// beside a bare loop that selects the same lines and writes them.
#include "bench/BareDatabase.h"
#include "bench/WidgetMain.h"
#include "reports/files/CsvFile.h"
#include "reports/files/PdfFile.h"
#include "reports/window/PageView.h"
#include "reports/window/Report.h"
#include "tests/reports/SampleReport.h"
#include "tests/support/RecordingBoxes.h"

#include <benchmark/benchmark.h>
#include <QApplication>
#include <QFileInfo>
#include <QLabel>
#include <QTemporaryDir>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace
{

using namespace norvane;
using bench::BareDatabase;
using bench::require;

constexpr int groupLines = 50; ///< with heading and subtotal

reports::ReportData reportOf(int lines)
{
    reports::ReportData report = test::emptySales();
    for (int group = 0; group < lines / groupLines; ++group)
        test::addGroup(report, u"Group %1"_s.arg(group), groupLines - 2);
    return report;
}

/// A window that records when its pages were first painted.
class FirstPaint : public QObject
{
public:
    FirstPaint() { qApp->installEventFilter(this); }
    [[nodiscard]] bool isSeen() const { return m_isSeen; }
    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && object->parent() &&
            qobject_cast<reports::PageView*>(object->parent()))
            m_isSeen = true;
        return false;
    }

private:
    bool m_isSeen = false;
};

bool isLaidOut(const QWidget& window)
{
    const auto* const number = window.findChild<QLabel*>(u"PageNumber"_s);
    return number && !number->text().endsWith(u"..."_s);
}

/// From run() with available lines to the first painted page, and to the last one laid out.
void openPreview(benchmark::State& state)
{
    const reports::ReportData lines = reportOf(static_cast<int>(state.range(0)));
    test::RecordingBoxes boxes;
    double whole = 0;
    for (auto _ : state) {
        QWidget window;
        reports::Report report(window, boxes, [&](const auto&, const auto&) { return lines; });
        const FirstPaint paint;
        const double first = bench::secondsOf([&] {
            report.run({});
            while (!paint.isSeen())
                QApplication::processEvents();
        });
        whole = first + bench::secondsOf([&] {
                    while (!isLaidOut(window))
                        QApplication::processEvents();
                });
        state.SetIterationTime(first);
    }
    state.counters["last_page_ms"] = whole * 1e3;
}

void writePages(benchmark::State& state)
{
    const QTemporaryDir folder;
    const reports::ReportData report = reportOf(100 * 49);
    for (auto _ : state) {
        const double taken =
            bench::secondsOf([&] { reports::writePdf(report, true, folder.filePath(u"a.pdf"_s)); });
        require(taken < 2, "a hundred pages are written in two seconds");
        state.SetIterationTime(taken);
    }
}

void fill(const BareDatabase& database, int lines)
{
    database.run("create table SALES (PLU text, DESCRIPTION text, QUANTITY real, AMOUNT real)");
    const QByteArray insert =
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
        QByteArray::number(lines) +
        ") insert into SALES select i % 48, 'Article ' || (i % 48), 1.125, 2.345 from n";
    database.run(insert.constData());
}

void bareCsv(const BareDatabase& database, const QString& path)
{
    std::FILE* const file = std::fopen(path.toUtf8().constData(), "w");
    sqlite3_stmt* const select =
        database.prepare("select PLU, DESCRIPTION, QUANTITY, round(AMOUNT, 2) from SALES");
    while (sqlite3_step(select) == SQLITE_ROW) {
        for (int column = 0; column < 4; ++column) {
            const auto text = bench::columnText(select, column);
            std::fwrite(text.data(), 1, text.size(), file);
            std::fputs(column < 3 ? "," : "\r\n", file);
        }
    }
    sqlite3_finalize(select);
    std::fclose(file);
}

void writeValues(benchmark::State& state)
{
    constexpr int lines = 100000;
    const QTemporaryDir folder;
    const BareDatabase database(folder.filePath(u"a.db"_s));
    fill(database, lines);
    const reports::ReportData report = reportOf(lines);
    bench::compare(
        state, [&] { reports::writeCsv(report, folder.filePath(u"ours.csv"_s)); },
        [&] { bareCsv(database, folder.filePath(u"bare.csv"_s)); });
    require(QFileInfo(folder.filePath(u"ours.csv"_s)).size() > lines * 20, "all lines were written");
}

} // namespace

BENCHMARK(openPreview)->Arg(5000)->Arg(100000)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(writePages)->UseManualTime()->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(writeValues)->UseManualTime()->Iterations(10)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    return norvane::bench::runWithWidgets(argc, argv);
}
