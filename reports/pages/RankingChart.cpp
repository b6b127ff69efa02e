// Horizontal bars, one below the other, each with its name on the left and its value at its end.
#include "reports/pages/RankingChart.h"

#include "reports/pages/PageStyles.h"

#include <QPainter>

#include <algorithm>

namespace norvane::reports
{
namespace
{

constexpr double bestPitch = 6.4;
constexpr double barPart = 0.66; ///< of the pitch
constexpr double barGap = 1.5;

struct Scale {
    double labelWidth = 0;
    double valueWidth = 0;
    double largest = 0;
};

Scale makeScale(const Chart& chart, const PageFont& font, double width)
{
    Scale scale;
    for (const ChartPoint& point : chart.points) {
        scale.labelWidth = std::max(scale.labelWidth, font.width(point.label, chartStyle));
        scale.valueWidth = std::max(scale.valueWidth, font.width(shownValue(chart, point.value), chartStyle));
        scale.largest = std::max(scale.largest, point.value.toDouble());
    }
    scale.labelWidth = std::min(scale.labelWidth, width * 0.4);
    return scale;
}

/// A value below zero, as after returns, has no bar but still shows its number.
double barLength(const ChartPoint& point, const Scale& scale, double space)
{
    return scale.largest > 0 ? std::max(0.0, point.value.toDouble() / scale.largest * space) : 0;
}

} // namespace

double rankingHeight(const Chart& chart, double /*width*/)
{
    return static_cast<double>(chart.points.size()) * bestPitch;
}

void paintRanking(QPainter& painter, const QRectF& place, const Chart& chart, const PageFont& font)
{
    const Scale scale = makeScale(chart, font, place.width());
    const double pitch = std::min(bestPitch, place.height() / static_cast<double>(chart.points.size()));
    TextStyle style = chartStyle;
    style.size = std::min(style.size, pitch * 0.75);
    const double origin = place.left() + scale.labelWidth + barGap;
    const double space = place.right() - origin - barGap - scale.valueWidth;
    QRectF row(place.left(), place.top(), scale.labelWidth, pitch);
    for (const ChartPoint& point : chart.points) {
        const QRectF bar(origin, row.center().y() - pitch * barPart / 2, barLength(point, scale, space),
                         pitch * barPart);
        font.draw(painter, row, font.elided(point.label, style, row.width() + 0.1), style, Alignment::Right);
        painter.fillRect(bar, ink::bar);
        font.draw(painter, QRectF(bar.right() + barGap, row.top(), scale.valueWidth, pitch),
                  shownValue(chart, point.value), style, Alignment::Left);
        row.moveTop(row.bottom());
    }
    painter.fillRect(QRectF(origin - thinLine, place.top(), thinLine, row.top() - place.top()), ink::rule);
}

} // namespace norvane::reports
