// Paints the title and calls the painter of the chart's kind; see ChartPainter.h.
#include "reports/pages/ChartPainter.h"

#include "reports/pages/CourseChart.h"
#include "reports/pages/PageStyles.h"
#include "reports/pages/RankingChart.h"
#include "reports/pages/SharesChart.h"

#include <QPainter>

namespace norvane::reports
{
namespace
{

constexpr double titleHeight = 9;

struct Drawing {
    double (*height)(const Chart&, double);
    void (*paint)(QPainter&, const QRectF&, const Chart&, const PageFont&);
};

const Drawing& drawing(ChartKind kind)
{
    static constexpr Drawing ranking{rankingHeight, paintRanking};
    static constexpr Drawing course{courseHeight, paintCourse};
    static constexpr Drawing shares{sharesHeight, paintShares};
    return kind == ChartKind::Ranking ? ranking : kind == ChartKind::Course ? course : shares;
}

} // namespace

double chartHeight(const Chart& chart, double width)
{
    return titleHeight + drawing(chart.kind).height(chart, width);
}

void paintChart(QPainter& painter, const QRectF& place, const Chart& chart, const PageFont& font)
{
    if (chart.points.empty())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF title(place.topLeft(), QSizeF(place.width(), chartTitleStyle.size * headingPitch));
    font.draw(painter, title, chart.title, chartTitleStyle, Alignment::Left);
    drawing(chart.kind).paint(painter, place.adjusted(0, titleHeight, 0, 0), chart, font);
    painter.restore();
}

} // namespace norvane::reports
