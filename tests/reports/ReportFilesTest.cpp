// The contents of saved report files, read back by other programs.
#include "reports/data/KeepGoing.h"
#include "reports/data/ReportData.h"
#include "reports/files/CsvFile.h"
#include "reports/files/PdfFile.h"
#include "reports/files/XlsxFile.h"
#include "tests/platform/FullDisk.h"
#include "tests/platform/TestFolder.h"
#include "tests/reports/SampleReport.h"
#include "tests/support/OtherPrograms.h"

#include <QLocale>
#include <QRegularExpression>
#include <QXmlStreamReader>

namespace norvane::test
{
namespace
{

using namespace reports;

/// A cell of a spreadsheet as its file spells it; texts in quotes.
QString cellOf(QXmlStreamReader& xml)
{
    const bool isText = xml.attributes().value(u"t"_s) == "inlineStr"_L1;
    const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
    return isText ? u'"' + text + u'"' : text;
}

/// The rows of the first sheet, the cells of each separated by bars.
QStringList sheetRows(const QString& path)
{
    QXmlStreamReader xml(outputOf(u"unzip"_s, {u"-p"_s, path, u"xl/worksheets/sheet1.xml"_s}));
    QStringList rows;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == "row"_L1) {
            rows << QString();
        } else if (xml.name() == "c"_L1) {
            rows.last() += cellOf(xml) + u'|';
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return rows;
}

QStringList shownCells(const ReportData& report, qsizetype line)
{
    QStringList cells;
    for (int column = 0; column < report.columnCount(); ++column)
        cells << report.text(line, column);
    return cells;
}

ReportData trickyReport()
{
    ReportData report(
        {textColumn(u"PLU"_s, 40),
         textColumn(u"Description"_s, 60),
         {u"Day"_s, paper::millimetres(25), Alignment::Left, ColumnKind::Date, 0, 0},
         {u"Value"_s, paper::millimetres(25), Alignment::Right, ColumnKind::Number, 2, 2, {true, u"£"_s}}});
    report.heading.title = u"Prices"_s;
    report.addLine(LineKind::Detail,
                   {u"123456789012345678"_s, u"=1+1"_s, QDate(2004, 2, 29), Decimal(5639549999999998, 12)});
    report.addLine(LineKind::Detail, {u"2"_s, u"5\" pipe; long, \x01"_s, {}, Decimal(-5, 3)});
    return report;
}

class ReportFiles : public testing::Test
{
protected:
    ~ReportFiles() override { QLocale::setDefault(QLocale::c()); }
    TestFolder m_folder;
};

TEST_F(ReportFiles, HaveTheNumbersOfThePreview)
{
    ReportData report = emptySales();
    addGroup(report, u"Coffee"_s, 60);
    report.addLine(LineKind::GrandTotal, {u"Grand total"_s, {}, Decimal(67500, 3), Decimal(1407, 1)});
    writePdf(report, true, m_folder.path("a.pdf"));
    writeCsv(report, m_folder.path("a.csv"));
    writeXlsx(report, m_folder.path("a.xlsx"));
    const QStringList pdf = pdfLines(m_folder.path("a.pdf"));
    const QStringList csv = QString::fromUtf8(m_folder.read("a.csv")).split(u"\r\n"_s);
    const QStringList xlsx = sheetRows(m_folder.path("a.xlsx"));
    ASSERT_EQ(csv.size(), report.lineCount() + 2);
    ASSERT_EQ(xlsx.size(), report.lineCount() + 4);
    for (qsizetype line = 0; line < report.lineCount(); ++line) {
        const QStringList cells = shownCells(report, line);
        EXPECT_TRUE(pdf.contains(cells.join(u' ').simplified())) << cells.join(u' ').toStdString();
        EXPECT_EQ(csv[line + 1], cells.join(u','));
        const QStringList kept = xlsx[line + 4].split(u'|');
        for (qsizetype cell = 0, place = 0; cell < cells.size(); ++cell) {
            if (!cells[cell].isEmpty()) {
                const QString value = kept.value(place++);
                EXPECT_TRUE(value == u'"' + cells[cell] + u'"' || value.toDouble() == cells[cell].toDouble())
                    << value.toStdString();
            }
        }
    }
    EXPECT_TRUE(pdf.contains(u"Friday, 7 May 2004 Page 1 of 2"_s) || pdf.contains(u"Page 2 of 2"_s));
    EXPECT_TRUE(pdf.contains(u"Coffee (continued)"_s));
}

/// "Coffee 1" for each entry of a PDF's outline, with its page, as another program reads them.
std::string outlineIn(const QString& path)
{
    static const QRegularExpression item(u"<item page=\"(\\d+)\">([^<]*)</item>"_s);
    const QString xml = QString::fromUtf8(outputOf(u"pdftohtml"_s, {u"-xml"_s, u"-i"_s, u"-stdout"_s, path}));
    QStringList entries;
    for (const auto& match : item.globalMatch(xml))
        entries << match.captured(2) + u' ' + match.captured(1);
    return entries.join(u'|').toStdString();
}

TEST_F(ReportFiles, APdfHasGroupsAndChartsInItsOutline)
{
    ReportData report = emptySales();
    addGroup(report, u"Coffee"_s, 70);
    addGroup(report, u"Thé ☕"_s, 3);
    writePdf(report, true, m_folder.path("groups.pdf"));
    EXPECT_EQ(outlineIn(m_folder.path("groups.pdf")), "Coffee 1|Thé ☕ 2");

    ReportData alone = emptySales();
    alone.link = ReportLink{u"articlesales.rpt"_s, u"{PLUDATA.GROUPNO}"_s, {}};
    alone.addLine(LineKind::Detail, {u"100"_s, u"TEA"_s});
    alone.setLinkValue(u"100"_s);
    alone.addLine(LineKind::GrandTotal, {u"Total"_s});
    alone.charts = {sampleChart(ChartKind::Ranking, 15)};
    writePdf(alone, true, m_folder.path("alone.pdf"));
    EXPECT_EQ(outlineIn(m_folder.path("alone.pdf")), "100 TEA 1|Best-selling PLUs 1");
    writePdf(alone, false, m_folder.path("alone.pdf"));
    EXPECT_EQ(outlineIn(m_folder.path("alone.pdf")), "100 TEA 1") << "without its charts";
}

// It is not a group, and other programs read only the lines of a CSV file.
TEST_F(ReportFiles, HaveARemarkOnPagesAndInTheSpreadsheetOnly)
{
    ReportData report = emptySales();
    addGroup(report, u"Coffee"_s, 2);
    writeCsv(report, m_folder.path("plain.csv"));
    report.addLine(LineKind::Remark, {u"Without a collection: Sun 04/10/2026"_s});
    writePdf(report, true, m_folder.path("a.pdf"));
    writeCsv(report, m_folder.path("a.csv"));
    writeXlsx(report, m_folder.path("a.xlsx"));
    EXPECT_EQ(outlineIn(m_folder.path("a.pdf")), "Coffee 1");
    EXPECT_EQ(m_folder.read("a.csv"), m_folder.read("plain.csv"));
    EXPECT_TRUE(pdfLines(m_folder.path("a.pdf")).contains(u"Without a collection: Sun 04/10/2026"_s));
    EXPECT_EQ(sheetRows(m_folder.path("a.xlsx")).last(), u"\"Without a collection: Sun 04/10/2026\"|"_s);
}

TEST_F(ReportFiles, SayWhenThereAreNoLines)
{
    writePdf(emptySales(), true, m_folder.path("a.pdf"));
    writeXlsx(emptySales(), m_folder.path("a.xlsx"));
    EXPECT_TRUE(pdfLines(m_folder.path("a.pdf")).contains(u"No sales on 7 May 2004."_s));
    EXPECT_EQ(sheetRows(m_folder.path("a.xlsx")).last(), u"\"No sales on 7 May 2004.\"|"_s);
}

TEST_F(ReportFiles, GiveTextsAsTextsAndDaysAsDays)
{
    writeXlsx(trickyReport(), m_folder.path("a.xlsx"));
    const QStringList rows = sheetRows(m_folder.path("a.xlsx"));
    EXPECT_EQ(rows[rows.size() - 2], u"\"123456789012345678\"|\"=1+1\"|38046|5639.55|"_s);
    EXPECT_EQ(rows.last(), u"\"2\"|\"5\" pipe; long,  \"|-0.01|"_s);
}

TEST_F(ReportFiles, SpellCsvAsTheUsersSpreadsheetReadsIt)
{
    QLocale::setDefault(QLocale(QLocale::German));
    writeCsv(trickyReport(), m_folder.path("a.csv"));
    EXPECT_EQ(trickyReport().text(0, 2), u"29/02/2004"_s) << "as everywhere on the screen";
    EXPECT_EQ(trickyReport().text(0, 3), u"£5.639,55"_s) << "on pages only";
    EXPECT_EQ(m_folder.read("a.csv").toStdString(), "\xEF\xBB\xBFPLU;Description;Day;Value\r\n"
                                                    "123456789012345678;\" =1+1\";2004-02-29;5639,55\r\n"
                                                    "2;\"5\"\" pipe; long,  \";;-0,01\r\n");
}

const std::function<void(const ReportData&, const QString&, const KeepGoing&)> writers[] = {
    [](const ReportData& report, const QString& path, const KeepGoing& keepGoing) {
        writePdf(report, true, path, keepGoing);
    },
    writeCsv, writeXlsx};

TEST_F(ReportFiles, LeaveTheFormerFileWhenWritingFailsOrIsCancelled)
{
    ReportData report = emptySales();
    addGroup(report, u"Coffee"_s, 2000);
    const QString path = m_folder.path("a");
    m_folder.write("a", "former");
    for (const auto& write : writers) {
        const auto errorOf = [&](const QString& target) {
            try {
                write(report, target, {});
            } catch (const ReportError& error) {
                return error.text();
            }
            return QString();
        };
        {
            const FullDisk disk(8000);
            EXPECT_TRUE(errorOf(path).startsWith(path + u" could not be written: "_s));
        }
        EXPECT_NE(errorOf(m_folder.path("missing/a")), QString());
        int asked = 0;
        EXPECT_THROW(write(report, path, [&asked] { return ++asked < 3; }), ReportCancelled);
        EXPECT_EQ(m_folder.names(), QStringList(u"a"_s));
        EXPECT_EQ(m_folder.read("a"), "former");
    }
}

} // namespace
} // namespace norvane::test
