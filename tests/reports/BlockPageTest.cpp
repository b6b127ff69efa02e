// A summary on its page: places of the blocks in mm, and the shades of its heat map.
#include "reports/pages/HeatMap.h"
#include "reports/pages/ReportPainter.h"
#include "tests/reports/SampleReport.h"

#include <gtest/gtest.h>
#include <QImage>
#include <QPainter>

namespace norvane::test
{
namespace
{

using namespace reports;

ReportBlock tableBlock(const QString& title, BlockPlace place, int lines, BlockKind kind = BlockKind::Table)
{
    ReportBlock block{title, kind, place,
                      ReportData({textColumn({}, 60), numberColumn(u"Mon"_s, 20, 2, 2),
                                  numberColumn(u"Tue"_s, 20, 2, 2), numberColumn(u"Value"_s, 20, 2, 2)})};
    for (int line = 0; line < lines; ++line) {
        block.table.addLine(LineKind::Detail,
                            {u"A name that is much too long for half a page %1"_s.arg(line),
                             Decimal(std::int64_t{100} * line, 2), Decimal(-100, 2), Decimal(1234567, 2)});
    }
    return block;
}

ReportData summaryOf(std::vector<ReportBlock> blocks)
{
    ReportData report({textColumn(u"Item"_s, 60)});
    report.heading = emptySales().heading;
    for (ReportBlock& block : blocks) {
        block.firstLine = report.lineCount();
        if (block.kind != BlockKind::Figure)
            report.addLine(LineKind::GroupHeading, {block.title});
        for (qsizetype line = 0; line < block.table.lineCount(); ++line)
            report.addLine(LineKind::Detail, {block.title});
    }
    report.blocks = std::move(blocks);
    return report;
}

ReportData wholeSummary(int lines)
{
    return summaryOf({tableBlock(u"Net sales"_s, BlockPlace::Left, 1, BlockKind::Figure),
                      tableBlock(u"Customers"_s, BlockPlace::Left, 1, BlockKind::Figure),
                      tableBlock(u"Groups"_s, BlockPlace::Left, lines),
                      tableBlock(u"Tax"_s, BlockPlace::Left, 1),
                      tableBlock(u"Best"_s, BlockPlace::Right, lines + 3),
                      tableBlock(u"Hours"_s, BlockPlace::Wide, lines, BlockKind::HeatMap)});
}

TEST(BlockPageTest, HasEveryLineOnceOnOnePageHoweverManyThereAre)
{
    const PageFont font;
    double size = 0;
    for (const int lines : {1, 10, 30, 60}) {
        SCOPED_TRACE(lines);
        const ReportData report = wholeSummary(lines);
        ReportPages pages(report, font, true);
        pages.layOutAll();
        ASSERT_EQ(pages.pageCount(), 1);
        EXPECT_FALSE(pages.frame().isLandscape());
        const auto placed = pages.placedLines(0);
        ASSERT_EQ(static_cast<qsizetype>(placed.size()), report.lineCount());
        for (std::size_t i = 0; i < placed.size(); ++i) {
            EXPECT_EQ(placed[i].line, static_cast<qsizetype>(i));
            EXPECT_TRUE(pages.frame().body.adjusted(-0.01, -0.01, 0.01, 0.01).contains(placed[i].place));
            for (std::size_t other = 0; other < i; ++other) {
                const QRectF shared = placed[i].place.intersected(placed[other].place);
                EXPECT_LT(shared.width() * shared.height(), 0.01) << i << ' ' << other;
            }
        }
        EXPECT_EQ(pages.pageOfLine(report.lineCount() - 1), 0);
        size = pages.blocks()->textSize();
        EXPECT_EQ(size < 2.7, lines >= 30) << size;
    }
    EXPECT_GT(size, 1.2) << "letters are still readable";
}

/// White between the texts of the last line, in mm from @p least on: wider than between words. Expects that
/// nothing is painted beside the line.
std::vector<double> gapsOfLastLine(ReportBlock block, double least)
{
    const PageFont font;
    const ReportData report = summaryOf({std::move(block)});
    ReportPages pages(report, font, true);
    pages.layOutAll();
    QImage picture(2100, 2970, QImage::Format_RGB32);
    picture.fill(Qt::white);
    {
        QPainter painter(&picture);
        painter.scale(10, 10);
        ReportPainter(report, pages, font).paint(painter, 0);
    }
    const QRectF line = pages.placedLines(0).back().place;
    const auto isInked = [&](double x) {
        for (double y = line.top() + 0.5; y < line.bottom() - 0.5; y += 0.1) {
            if (picture.pixelColor(static_cast<int>(x * 10), static_cast<int>(y * 10)).lightness() < 0x90)
                return true;
        }
        return false;
    };
    std::vector<double> gaps;
    double white = 0;
    for (double x = line.left(); x < line.right() - 1; x += 0.1) {
        if (isInked(x) && white > least)
            gaps.push_back(white);
        white = isInked(x) ? 0 : white + 0.1;
    }
    EXPECT_FALSE(isInked(line.right() + 0.5));
    return gaps;
}

/// Names are cut so that they end before the numbers, which are never cut.
TEST(BlockPageTest, NamesEndBeforeTheNumbers)
{
    EXPECT_EQ(gapsOfLastLine(tableBlock(u"Groups"_s, BlockPlace::Left, 5), 1.5).size(), 3U)
        << "between the name and three numbers";
}

// Numbers of nine digits before the point, for each day of the week and beside another period.
TEST(BlockPageTest, LargeNumbersRemainApartAndLeaveRoomForNames)
{
    for (const auto& [kind, place, numbers] : {std::tuple(BlockKind::HeatMap, BlockPlace::Wide, 8),
                                               std::tuple(BlockKind::Table, BlockPlace::Left, 4)}) {
        std::vector<ReportColumn> columns{textColumn({}, 60)};
        std::vector<ReportCell> cells{u"Breakfast"_s};
        for (int number = 0; number < numbers; ++number) {
            columns.push_back(numberColumn(u"Value"_s, 20, 2, 2));
            columns.back().dress = {true, u"£"_s};
            cells.emplace_back(Decimal(11638120012, 2));
        }
        ReportBlock block{u"Block"_s, kind, place, ReportData(columns)};
        block.table.addLine(LineKind::Detail, cells);
        EXPECT_EQ(gapsOfLastLine(std::move(block), 0.7).size(), static_cast<std::size_t>(numbers));
    }
}

TEST(HeatMapTest, IsDarkerForMoreAndReadableEverywhere)
{
    double before = 256;
    for (const double number : {-5.0, 1.0, 20.0, 60.0, 100.0}) {
        const QColor colour = heatColour(number, 100);
        EXPECT_LT(qGray(colour.rgb()), before);
        before = qGray(colour.rgb());
    }
    EXPECT_EQ(heatColour(-5, 100), QColor(Qt::white));
    EXPECT_EQ(heatColour(1, 0), QColor(Qt::white)) << "nothing was sold";
    EXPECT_GT(before, 0x80) << "black letters on the darkest";
    EXPECT_LT(before, 0xc0) << "a printer without colours shows it";
    const ReportBlock block = tableBlock(u"Hours"_s, BlockPlace::Wide, 4, BlockKind::HeatMap);
    EXPECT_DOUBLE_EQ(largestHeat(block.table), 3) << "the sums of lines do not count";
}

} // namespace
} // namespace norvane::test
