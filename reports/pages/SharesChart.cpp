// A disc cut into parts, largest first from the top, and beside it each part's name, value and percentage.
// Neighbouring parts differ in lightness.
#include "reports/pages/SharesChart.h"

#include "reports/pages/PageStyles.h"

#include <QLocale>
#include <QPainter>

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

constexpr double rowHeight = 5.4;
constexpr double discSize = 56;
constexpr double legendGap = 8;       ///< between disc and legend
constexpr double fullTurn = 360 * 16; ///< in the painter's sixteenths of a degree

/// For angles and percentages only: it never fails, as an exact sum of many digits does.
double wholeOf(const std::vector<ChartPoint>& parts)
{
    return std::accumulate(parts.begin(), parts.end(), 0.0,
                           [](double sum, const ChartPoint& part) { return sum + part.value.toDouble(); });
}

/// Dark and light in turn, each a little paler than the last of its kind.
QColor partColour(std::size_t part)
{
    const int dark = 0x35 + static_cast<int>(part / 2) * 0x16;
    const int light = 0xb4 + static_cast<int>(part / 2) * 0x0d;
    const int grey = part % 2 == 0 ? dark : light;
    return {grey - 0x15, grey, std::min(0xff, grey + 0x18)};
}

QString percentage(double part, double whole)
{
    return QLocale().toString(part / whole * 100, 'f', 1) + u" %"_s;
}

void paintDisc(QPainter& painter, const QRectF& disc, const std::vector<ChartPoint>& parts, double whole)
{
    // The edge of a whole disc would be a line to its middle.
    painter.setPen(parts.size() == 1 ? QPen(Qt::NoPen) : QPen(Qt::white, 0.4));
    double start = fullTurn / 4;
    for (std::size_t part = 0; part < parts.size(); ++part) {
        const double span = parts[part].value.toDouble() / whole * fullTurn;
        painter.setBrush(partColour(part));
        painter.drawPie(disc, static_cast<int>(start), -static_cast<int>(span + 1));
        start -= span;
    }
    painter.setPen(QPen(ink::rule, hairline));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(disc);
}

/// Widths in mm.
struct LegendColumns {
    const Chart& chart;
    double label = 0;
    double value = 0;
    double percentage = 0;

    [[nodiscard]] QString shownValue(const ChartPoint& part) const
    {
        return reports::shownValue(chart, part.value);
    }
};

void paintRow(QPainter& painter, QPointF corner, const ChartPoint& part, double whole,
              const LegendColumns& columns, const PageFont& font)
{
    const auto place = [&](double width) {
        const QRectF cell(corner, QSizeF(width, rowHeight));
        corner.rx() += width + 3;
        return cell;
    };
    font.draw(painter, place(columns.label), font.elided(part.label, chartStyle, columns.label + 0.1),
              chartStyle, Alignment::Left);
    font.draw(painter, place(columns.value), columns.shownValue(part), chartStyle, Alignment::Right);
    font.draw(painter, place(columns.percentage), percentage(part.value.toDouble(), whole), chartStyle,
              Alignment::Right);
}

LegendColumns legendColumns(const std::vector<ChartPoint>& parts, const Chart& chart, const PageFont& font,
                            double width)
{
    LegendColumns columns{chart, 0, 0, font.width(percentage(1, 1), chartStyle)};
    for (const ChartPoint& part : parts) {
        columns.label = std::max(columns.label, font.width(part.label, chartStyle));
        columns.value = std::max(columns.value, font.width(columns.shownValue(part), chartStyle));
    }
    columns.label = std::max(1.0, std::min(columns.label, width - columns.value - columns.percentage - 12));
    return columns;
}

void paintLegend(QPainter& painter, const QRectF& place, const std::vector<ChartPoint>& parts, double whole,
                 const LegendColumns& columns, const PageFont& font)
{
    double top = place.top();
    for (std::size_t part = 0; part < parts.size(); ++part) {
        const QRectF sample(place.left(), top + 0.9, rowHeight - 1.8, rowHeight - 1.8);
        painter.setPen(QPen(ink::rule, hairline));
        painter.setBrush(partColour(part));
        painter.drawRect(sample);
        paintRow(painter, QPointF(sample.right() + 2, top), parts[part], whole, columns, font);
        top += rowHeight;
    }
}

/// The legend is beside the disc, or below it if that would leave no room for names.
bool isLegendBelow(double width)
{
    return width < 2.2 * discSize;
}

double discSizeIn(double width)
{
    return std::min(discSize, width * 0.6);
}

double legendHeight(std::size_t parts)
{
    return static_cast<double>(parts) * rowHeight;
}

} // namespace

double sharesHeight(const Chart& chart, double width)
{
    const double legend = legendHeight(chart.points.size());
    return isLegendBelow(width) ? discSizeIn(width) + legendGap + legend : std::max(discSize, legend) + 2;
}

void paintShares(QPainter& painter, const QRectF& place, const Chart& chart, const PageFont& font)
{
    const std::vector<ChartPoint>& parts = chart.points;
    if (parts.empty())
        return;
    const double whole = wholeOf(parts);
    const double size = std::min(discSizeIn(place.width()), place.height());
    const QRectF disc(place.left(), place.top(), size, size);
    const double legendTop = std::max(place.top(), disc.center().y() - legendHeight(parts.size()) / 2);
    const QRectF legend = isLegendBelow(place.width())
                              ? place.adjusted(0, size + legendGap, 0, 0)
                              : QRectF(QPointF(disc.right() + legendGap, legendTop), place.bottomRight());
    paintDisc(painter, disc, parts, whole);
    paintLegend(painter, legend, parts, whole, legendColumns(parts, chart, font, legend.width()), font);
}

} // namespace norvane::reports
