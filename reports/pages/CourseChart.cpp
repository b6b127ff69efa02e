// Upright bars in their order, over a scale of round numbers.
#include "reports/pages/CourseChart.h"

#include "reports/pages/PageStyles.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace norvane::reports
{
namespace
{

constexpr double scaleGap = 1.5;
constexpr double labelHeight = 5;
constexpr double wantedSteps = 5;
constexpr double widestBar = 12;

/// The nearest of 1, 2, 5, 10, 20 ... that is at least @p size.
double roundStep(double size)
{
    const double power = std::pow(10, std::floor(std::log10(size)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (size <= factor * power)
            return factor * power;
    }
    return 10 * power;
}

/// The scale beside the bars: from @p low to @p high, both multiples of the step.
struct ValueScale {
    double low = 0;
    double high = 1;
    double step = 1;
};

ValueScale makeScale(const Chart& chart)
{
    ValueScale scale{0, 0, 1};
    for (const ChartPoint& point : chart.points) {
        scale.low = std::min(scale.low, point.value.toDouble());
        scale.high = std::max(scale.high, point.value.toDouble());
    }
    // No step is finer than the numbers beside it can show.
    const double finest = std::pow(10, -chart.mostDecimals);
    if (scale.high > scale.low)
        scale.step = std::max(finest, roundStep((scale.high - scale.low) / wantedSteps));
    scale.low = std::floor(scale.low / scale.step) * scale.step;
    scale.high = std::max(scale.step, std::ceil(scale.high / scale.step) * scale.step);
    return scale;
}

class Course
{
public:
    Course(QPainter& painter, const QRectF& place, const Chart& chart, const PageFont& font)
        : m_painter(painter), m_chart(chart), m_font(font), m_scale(makeScale(chart))
    {
        const double scaleWidth =
            std::max(font.width(tick(m_scale.high), chartStyle), font.width(tick(m_scale.low), chartStyle));
        m_field = place.adjusted(scaleWidth + scaleGap, chartStyle.size / 2, 0, -labelHeight);
        m_pitch = m_field.width() / static_cast<double>(chart.points.size());
    }

    void paint()
    {
        paintScale();
        for (std::size_t point = 0; point < m_chart.points.size(); ++point)
            paintBar(point);
        m_painter.fillRect(QRectF(m_field.left(), y(0) - thinLine / 2, m_field.width(), thinLine), ink::rule);
        paintLabels();
    }

private:
    [[nodiscard]] double y(double value) const
    {
        return m_field.bottom() - (value - m_scale.low) / (m_scale.high - m_scale.low) * m_field.height();
    }
    [[nodiscard]] QString tick(double value) const
    {
        return dressed(shownNumber(Decimal::fromDouble(value), 0, m_chart.mostDecimals), m_chart.dress);
    }

    void paintScale()
    {
        const int steps = static_cast<int>(std::lround((m_scale.high - m_scale.low) / m_scale.step));
        for (int step = 0; step <= steps; ++step) {
            const double value = m_scale.low + step * m_scale.step;
            m_painter.fillRect(QRectF(m_field.left(), y(value) - hairline / 2, m_field.width(), hairline),
                               ink::line);
            const QRectF label(m_field.left() - scaleGap - 40, y(value) - 3, 40, 6);
            m_font.draw(m_painter, label, tick(value), chartStyle, Alignment::Right);
        }
    }

    void paintBar(std::size_t point)
    {
        const double width = std::min(widestBar, m_pitch * 0.72);
        const double value = m_chart.points[point].value.toDouble();
        const double centre = m_field.left() + (static_cast<double>(point) + 0.5) * m_pitch;
        m_painter.fillRect(
            QRectF(QPointF(centre - width / 2, y(value)), QPointF(centre + width / 2, y(0))).normalized(),
            ink::bar);
    }

    /// Only every second, third and so on where all labels would not fit side by side; always the first.
    void paintLabels()
    {
        double widest = 0;
        for (const ChartPoint& point : m_chart.points)
            widest = std::max(widest, m_font.width(point.label, chartStyle) + scaleGap);
        const auto every = static_cast<std::size_t>(std::max(1.0, std::ceil(widest / m_pitch)));
        for (std::size_t point = 0; point < m_chart.points.size(); point += every) {
            const double centre = m_field.left() + (static_cast<double>(point) + 0.5) * m_pitch;
            const QRectF place(centre - widest / 2, m_field.bottom() + 0.8, widest, labelHeight);
            m_font.draw(m_painter, place, m_chart.points[point].label, chartStyle, Alignment::Centre);
        }
    }

    QPainter& m_painter;
    const Chart& m_chart;
    const PageFont& m_font;
    ValueScale m_scale;
    QRectF m_field;     ///< the area of the bars
    double m_pitch = 1; ///< from one bar to the next, in mm
};

} // namespace

double courseHeight(const Chart& /*chart*/, double /*width*/)
{
    return 74;
}

void paintCourse(QPainter& painter, const QRectF& place, const Chart& chart, const PageFont& font)
{
    Course(painter, place, chart, font).paint();
}

} // namespace norvane::reports
