// What charts show on paper, measured on a picture of ten dots to the millimetre.
#include "reports/pages/ChartPainter.h"
#include "reports/pages/PageStyles.h"
#include "tests/reports/SampleReport.h"

#include <gtest/gtest.h>
#include <QImage>
#include <QPainter>

#include <cmath>

namespace norvane::test
{
namespace
{

using namespace reports;

struct Span {
    double first = 0;
    double last = 0;
    [[nodiscard]] double length() const { return last - first; }
    [[nodiscard]] double centre() const { return (first + last) / 2; }
};

/// A chart in a place that begins at 10, 10.
class Picture
{
public:
    Picture(const Chart& chart, double width)
        : m_place(10, 10, width, chartHeight(chart, width)),
          m_image(static_cast<int>(m_place.right() + 40) * 10, static_cast<int>(m_place.bottom() + 10) * 10,
                  QImage::Format_RGB32)
    {
        m_image.fill(Qt::white);
        QPainter painter(&m_image);
        painter.scale(10, 10);
        paintChart(painter, m_place, chart, PageFont());
    }
    [[nodiscard]] QColor at(double x, double y) const
    {
        return m_image.pixelColor(static_cast<int>(x * 10), static_cast<int>(y * 10));
    }
    /// The bars that a line across meets.
    [[nodiscard]] std::vector<Span> barsAcross(double y) const
    {
        return runs(m_image.width(), [&](double x) { return at(x, y) == ink::bar; });
    }
    /// The bar that a line down meets.
    [[nodiscard]] Span barDown(double x) const
    {
        const auto bars = runs(m_image.height(), [&](double y) { return at(x, y) == ink::bar; });
        return bars.empty() ? Span{} : Span{bars.front().first, bars.back().last};
    }
    /// From the first to the last of what is painted in an area.
    [[nodiscard]] Span inkAcross(const QRectF& area) const
    {
        const auto parts = runs(m_image.width(), [&](double x) {
            for (double y = area.top(); x >= area.left() && x < area.right() && y < area.bottom(); y += 0.1) {
                if (at(x, y).lightness() < 0xc0)
                    return true;
            }
            return false;
        });
        return parts.empty() ? Span{} : Span{parts.front().first, parts.back().last};
    }
    void expectInside() const
    {
        const Span across = inkAcross({0, 0, m_image.width() / 10.0, m_image.height() / 10.0});
        EXPECT_GE(across.first, 9.9);
        EXPECT_LE(across.last, m_place.right() + 0.1);
    }

private:
    template <typename IsInk>
    static std::vector<Span> runs(int size, const IsInk& isInk)
    {
        std::vector<Span> found;
        for (int dot = 0; dot < size; ++dot) {
            const double place = (dot + 0.5) / 10;
            if (!isInk(place))
                continue;
            if (found.empty() || found.back().last < place - 0.1)
                found.push_back({dot / 10.0, 0});
            found.back().last = (dot + 1) / 10.0;
        }
        return found;
    }

    QRectF m_place;
    QImage m_image;
};

Chart chartOf(ChartKind kind, std::initializer_list<std::pair<QString, std::int64_t>> points)
{
    Chart chart{kind, u"Title"_s, 2, 2, {}};
    for (const auto& [label, cents] : points)
        chart.points.push_back({label, Decimal(cents, 2)});
    return chart;
}

TEST(ChartPaintTest, ARankingHasBarsInProportionBetweenItsLabelsAndValues)
{
    const QString longName = u"A name that is far longer than the part of the picture that it may take"_s;
    const Picture picture(chartOf(ChartKind::Ranking, {{longName, 10000}, {u"B"_s, 5000}, {u"C"_s, -500}}),
                          120);
    picture.expectInside();
    const auto row = [](int index) {
        return 19 + 6.4 * (index + 0.5);
    };
    const auto bars = picture.barsAcross(row(0));
    const auto halves = picture.barsAcross(row(1));
    ASSERT_EQ(bars.size(), 1U);
    ASSERT_EQ(halves.size(), 1U);
    EXPECT_EQ(halves[0].first, bars[0].first);
    EXPECT_NEAR(halves[0].length(), bars[0].length() / 2, 0.2);
    EXPECT_TRUE(picture.barsAcross(row(2)).empty()) << "less than nothing";
    EXPECT_NEAR(bars[0].first, 10 + 0.4 * 120 + 1.5, 0.2);
    const Span label = picture.inkAcross({10, row(1) - 2, bars[0].first - 11, 4});
    EXPECT_GT(label.first, bars[0].first - 6) << "beside its bar";
    EXPECT_LT(label.last, bars[0].first - 1);
    const Span value = picture.inkAcross({bars[0].last + 0.2, row(0) - 2, 60, 4});
    EXPECT_NEAR(value.first, bars[0].last + 1.5, 0.5);
    EXPECT_GT(value.last, 128) << "the longest takes what there is";
}

TEST(ChartPaintTest, SharesFillTheDiscClockwiseInTheColoursOfTheirLegend)
{
    const Chart chart = chartOf(ChartKind::Shares, {{u"A"_s, 5000}, {u"B"_s, 3000}, {u"C"_s, 2000}});
    const Picture wide(chart, 140);
    const Picture narrow(chart, 60);
    const auto expectDisc = [](const Picture& picture, double size, double legendX, double legendY) {
        // Just inside of each border between two parts.
        for (const auto& [degrees, part] :
             {std::pair(4, 0), {176, 0}, {184, 1}, {284, 1}, {292, 2}, {356, 2}}) {
            const double turn = degrees * 3.14159265 / 180;
            const double x = 10 + size / 2 + std::sin(turn) * size / 3;
            const double y = 19 + size / 2 - std::cos(turn) * size / 3;
            EXPECT_EQ(picture.at(x, y), picture.at(legendX, legendY + 5.4 * part)) << size << ' ' << degrees;
        }
        EXPECT_NE(picture.at(legendX, legendY), QColor(Qt::white));
        picture.expectInside();
    };
    expectDisc(wide, 56, 10 + 56 + 8 + 1.8, 19 + 28 - 5.4);
    expectDisc(narrow, 36, 10 + 1.8, 19 + 36 + 8 + 2.7);
    const QString longName = u"A name that is far longer than the part of the picture that it may take"_s;
    Picture(chartOf(ChartKind::Shares, {{longName, 5000}, {u"B"_s, 3000}}), 140).expectInside();
}

TEST(ChartPaintTest, ACourseBeginsAtItsZeroWithEachLabelBelowItsBar)
{
    const Picture picture(
        chartOf(ChartKind::Course, {{u"1"_s, 1000}, {u"Monday, 2/11"_s, 500}, {u"3"_s, -500}}), 100);
    picture.expectInside();
    // The field from 10.00 at 20.5 to -5.00 at 88.
    ASSERT_EQ(picture.barsAcross(60).size(), 2U);
    ASSERT_EQ(picture.barsAcross(75).size(), 1U);
    const Span bars[] = {picture.barsAcross(60)[0], picture.barsAcross(60)[1], picture.barsAcross(75)[0]};
    EXPECT_NEAR(bars[1].centre() - bars[0].centre(), bars[2].centre() - bars[1].centre(), 0.2);
    const Span heights[] = {{20.5, 65.5}, {43, 65.5}, {65.5, 88}};
    for (int bar = 0; bar < 3; ++bar) {
        EXPECT_NEAR(bars[bar].length(), 12, 0.2);
        const Span down = picture.barDown(bars[bar].centre());
        EXPECT_NEAR(down.first, heights[bar].first, 0.3) << bar;
        EXPECT_NEAR(down.last, heights[bar].last, 0.3) << bar;
        const Span label = picture.inkAcross({bars[bar].centre() - 12, 88.8, 24, 4});
        EXPECT_NEAR(label.centre(), bars[bar].centre(), 0.4) << bar;
    }
}

} // namespace
} // namespace norvane::test
