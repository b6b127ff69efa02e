// How lines are broken into pages, and their places on paper.
#include "reports/pages/ReportPages.h"

#include "reports/data/PrintableText.h"
#include "reports/files/PdfFile.h"
#include "tests/platform/TestFolder.h"
#include "tests/reports/SampleReport.h"
#include "tests/support/OtherPrograms.h"

namespace norvane::test
{
namespace
{

using namespace reports;

class Paged
{
public:
    explicit Paged(const ReportData& report, bool showsCharts = true) : pages(report, font, showsCharts)
    {
        pages.layOutAll();
    }
    [[nodiscard]] std::vector<std::size_t> chartCounts() const
    {
        std::vector<std::size_t> counts(static_cast<std::size_t>(pages.pageCount()));
        for (int page = 0; page < pages.pageCount(); ++page)
            counts[static_cast<std::size_t>(page)] = pages.page(page).charts.size();
        return counts;
    }

    PageFont font;
    ReportPages pages;
};

void expectEachLineOnce(const ReportData& report)
{
    const Paged paged(report);
    qsizetype next = 0;
    for (int index = 0; index < paged.pages.pageCount(); ++index) {
        const ReportPage& page = paged.pages.page(index);
        EXPECT_EQ(page.firstLine, next);
        next = page.endLine;
        EXPECT_NE(report.lineKind(page.endLine - 1), LineKind::GroupHeading);
        EXPECT_NE(report.lineKind(page.firstLine), LineKind::Subtotal);
        EXPECT_EQ(page.continuedGroup.has_value(), report.lineKind(page.firstLine) == LineKind::Detail);
        EXPECT_LE(paged.pages.placedLines(index).back().place.bottom(),
                  paged.pages.frame().body.bottom() + 0.01);
        EXPECT_EQ(paged.pages.pageOfLine(page.endLine - 1), index);
    }
    EXPECT_EQ(next, report.lineCount());
}

// Groups of each size end differently at the foot of a page.
TEST(ReportPagesTest, HaveEveryLineOnceAndEveryHeadingWithItsLines)
{
    for (const int size : {1, 2, 20, 40, 41, 42, 43, 44, 45, 46, 47, 48, 120}) {
        SCOPED_TRACE(size);
        ReportData report = emptySales();
        for (int group = 0; group < 7; ++group)
            addGroup(report, u"Group %1"_s.arg(group), size);
        expectEachLineOnce(report);
    }
}

TEST(ReportPagesTest, PutsChartsBelowTheLinesOrOnSeparatePages)
{
    ReportData report = emptySales();
    report.charts = {sampleChart(ChartKind::Ranking, 15), sampleChart(ChartKind::Shares, 5),
                     sampleChart(ChartKind::Course, 0)};
    addGroup(report, u"Drinks"_s, 10);
    EXPECT_EQ(Paged(report).chartCounts(), (std::vector<std::size_t>{2}));
    addGroup(report, u"Cakes"_s, 25);
    EXPECT_EQ(Paged(report).chartCounts(), (std::vector<std::size_t>{0, 2}));
    EXPECT_EQ(Paged(report, false).chartCounts(), (std::vector<std::size_t>{0}));
    report.page.isLandscape = true;
    const Paged wide(report);
    ASSERT_EQ(wide.chartCounts(), (std::vector<std::size_t>{0, 2}));
    const auto& charts = wide.pages.page(1).charts;
    EXPECT_EQ(charts[0].place.top(), charts[1].place.top());
    EXPECT_LT(charts[0].place.right(), charts[1].place.left());
    EXPECT_NEAR(charts[1].place.right(), 283, 0.01);
}

/// PLU numbers of @p digits digits, names, and @p values columns of long numbers under two words.
ReportData wideReport(int digits, int values, bool mayTurn)
{
    std::vector<ReportColumn> columns = {textColumn(u"PLU"_s, 8), textColumn(u"Description"_s, 60)};
    for (int column = 0; column < values; ++column)
        columns.push_back(numberColumn(u"Quantityofmeals sold"_s, 8, 2, 2));
    columns.back().dress = {true, u"£"_s};
    ReportData report(columns);
    report.page.mayTurn = mayTurn;
    std::vector<ReportCell> cells(columns.size(), Decimal(-123456789012, 2));
    cells[0] = QString(digits, u'8');
    cells[1] = u"A description of some length, Linked PLU 123456789012345678, and more of the same"_s;
    report.addLine(LineKind::Detail, cells);
    report.addLine(LineKind::Detail, {u"1"_s, u"Tea"_s});
    return report;
}

void expectInPlace(const Paged& paged, const CellBox& cell, const TextStyle& style)
{
    for (const QString& row : cell.rows)
        EXPECT_LE(paged.font.width(row, style), cell.place.width + 0.01) << row.toStdString();
    EXPECT_LE(cell.place.right(), paged.pages.frame().body.right() + 0.01);
}

const std::tuple<int, int, bool, int, int> wideReports[] = {
    {13, 3, false, 210, 1}, {18, 6, false, 210, 1}, {18, 9, true, 297, 1},
    {18, 9, false, 210, 2}, {18, 16, true, 297, 2}, {18, 30, true, 297, 3},
};

// Smaller letters first, then the sheet is turned, then columns go on below the others.
TEST(ReportPagesTest, DoNotSplitNumbersOrWordsOfHeadings)
{
    for (const auto& [digits, values, mayTurn, width, bands] : wideReports) {
        SCOPED_TRACE(values);
        const ReportData report = wideReport(digits, values, mayTurn);
        const Paged paged(report);
        const LineLayout& lines = paged.pages.lines();
        EXPECT_EQ(paged.pages.frame().sheet.width(), width);
        EXPECT_EQ(lines.places().bandCount(), bands);
        const auto headings = lines.headings();
        for (const CellBox& heading : headings) {
            EXPECT_FALSE(heading.rows.filter(u"Quantityofmeals"_s).isEmpty() && heading.rows[0].size() > 11);
            expectInPlace(paged, heading, {lines.places().textSize, true});
        }
        const auto cells = lines.cells(0);
        for (std::size_t column = 0; column < cells.size(); ++column) {
            EXPECT_TRUE(column == 1 || cells[column].rows.size() == 1);
            expectInPlace(paged, cells[column], lines.style(0));
        }
        EXPECT_GT(cells[1].rows.size(), 1) << "the text gives way before the numbers";
        EXPECT_FALSE(cells[1].rows.filter(u"123456789012345678"_s).isEmpty());
        // Bands are below each other, in the headings too.
        const auto names = static_cast<int>(cells[1].rows.size());
        EXPECT_EQ(cells.back().firstRow, bands == 1 ? 0 : names + bands - 2);
        EXPECT_GE(lines.height(0), (names + bands - 1) * lines.rowHeight());
        EXPECT_EQ(headings.back().firstRow, 2 * bands - 2);
    }
}

// As beside another period: numbers in columns much wider than they are.
TEST(ReportPagesTest, ColumnsGiveUpEmptyRoomBeforeTextsAreBroken)
{
    std::vector<ReportColumn> columns{textColumn(u"Time"_s, 40)};
    std::vector<ReportCell> cells{u"06:00 to 07:59"_s};
    for (int number = 0; number < 12; ++number) {
        columns.push_back(numberColumn(u"Value"_s, 30, 2, 2));
        cells.emplace_back(Decimal(123456, 2));
    }
    ReportData report(columns);
    report.addLine(LineKind::Detail, cells);
    report.page.isLandscape = true;
    const Paged paged(report);
    EXPECT_EQ(paged.pages.lines().cells(0).front().rows, QStringList(u"06:00 to 07:59"_s));
    EXPECT_EQ(paged.pages.lines().places().bandCount(), 1);
    // Numbers that need the whole width make the letters smaller, and do not break the name.
    for (std::size_t number = 1; number < cells.size(); ++number)
        cells[number] = Decimal(123456789012, 2);
    report.addLine(LineKind::Detail, cells);
    EXPECT_EQ(Paged(report).pages.lines().cells(1).front().rows.size(), 1);
}

TEST(ReportPagesTest, TheLabelOfATotalRunsOnAndTheDashInPlaceOfANumberDoesNot)
{
    ReportData report({textColumn(u"Time"_s, 20), textColumn(u"Note"_s, 40),
                       numberColumn(u"Change %"_s, 30, 1, 1), numberColumn(u"Value"_s, 30, 2, 2)});
    report.addLine(LineKind::Detail, {u"06:00"_s, u"Early"_s, Decimal(125, 1), Decimal(100, 2)});
    report.addLine(LineKind::GrandTotal, {u"Total of all hours"_s, {}, u"–"_s});
    const Paged paged(report);
    const auto detail = paged.pages.lines().cells(0);
    const auto total = paged.pages.lines().cells(1);
    ASSERT_EQ(total.size(), 2U);
    EXPECT_EQ(total[0].rows.size(), 1);
    EXPECT_NEAR(total[0].place.right(), detail[1].place.right(), 0.01);
    EXPECT_EQ(total[1].alignment, Alignment::Right);
    EXPECT_NEAR(total[1].place.right(), detail[2].place.right(), 0.01);
}

TEST(PageFontTest, KeepsEveryLetterOverSeveralRows)
{
    const PageFont font;
    for (const QString& words : {u"Toffee fudge brownie with cream"_s, u"Unbreakableword30characterslong"_s,
                                 u"שלום עולם שלום עולם שלום עולם"_s, u"tab\tand\x01 bell\a in one line"_s}) {
        const QStringList rows = font.wrapped(words, {}, 20);
        EXPECT_GT(rows.size(), 1);
        EXPECT_EQ(rows.join(QString()).remove(u' '), printable(words).remove(u' '));
        for (const QString& row : rows)
            EXPECT_LE(font.width(row, {}), 20.1) << row.toStdString();
    }
}

/// First and last dark dot of a row, in mm.
std::pair<double, double> darkPart(const QImage& page, double y)
{
    const auto row = static_cast<int>(y * 10);
    int first = page.width();
    int last = 0;
    for (int x = 0; x < page.width(); ++x) {
        if (qGray(page.pixel(x, row)) < 0x80) {
            first = std::min(first, x);
            last = x;
        }
    }
    return {first / 10.0, (last + 1) / 10.0};
}

TEST(PdfTest, IsOnPaperWhereThePagesSay)
{
    const TestFolder folder;
    for (const bool isLandscape : {false, true}) {
        ReportData report = emptySales();
        report.page.isLandscape = isLandscape;
        addGroup(report, u"Drinks"_s, 3);
        writePdf(report, true, folder.path("a.pdf"));
        const QImage page = pdfPage(folder.path("a.pdf"), 1);
        const double rule = Paged(report).pages.frame().heading.bottom();
        EXPECT_NEAR(page.width() / 10.0, isLandscape ? 297 : 210, 0.2);
        const auto [left, right] = darkPart(page, rule);
        EXPECT_NEAR(left, 14, 0.15);
        EXPECT_NEAR(right, isLandscape ? 283 : 196, 0.15);
    }
}

} // namespace
} // namespace norvane::test
