// See ChartBuilder.h.
#include "reports/lines/ChartBuilder.h"

#include "platform/Dates.h"
#include "platform/DecimalTotal.h"
#include "platform/RuntimeFailure.h"
#include "reports/formula/ExactNumbers.h"

#include <algorithm>
#include <span>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

/// So many parts have a place in the legend, and the others together one more.
constexpr std::size_t mostShares = 10;

/// The exact sum of the points' values.
/// @throws RuntimeFailure with Failure::Overflow if it has more than 18 digits before the point.
Decimal sumOf(std::span<const ChartPoint> points)
{
    DecimalTotal total;
    for (const ChartPoint& point : points)
        total.add(std::string_view(point.value.text()));
    return decimalOf(total.text());
}

} // namespace

void ChartPoints::add(const QString& label, const SlotNumbers& numbers, QDate day)
{
    try {
        const auto value = m_layout.value->value(numbers);
        if (!value)
            return;
        m_points.push_back({label, *value});
    } catch (const RuntimeFailure& failure) {
        if (failure.failure() != Failure::Overflow)
            throw;
        m_isTooLarge = true;
        return;
    }
    if (day.isValid())
        m_days.push_back(day);
}

Chart ChartPoints::finished(const MoneyFormat& money)
{
    if (m_isTooLarge)
        return {};
    if (m_layout.kind != ChartKind::Course) {
        keepLargest();
    } else if (m_points.size() > mostDaysOfCourse && m_days.size() == m_points.size()) {
        putMonthsTogether();
    }
    const CellFormat& format = m_layout.valueFormat;
    const bool isMoney = format.kind == FormatKind::Money;
    Chart chart{m_layout.kind,
                m_layout.title,
                isMoney ? money.decimals : format.leastDecimals,
                isMoney ? money.decimals : format.mostDecimals,
                {},
                {true, isMoney ? money.currency : QString()}};
    // A single bar shows no course.
    if (m_layout.kind != ChartKind::Course || m_points.size() > 1)
        chart.points = std::move(m_points);
    return chart;
}

void ChartPoints::putMonthsTogether()
{
    std::vector<ChartPoint> months;
    for (std::size_t from = 0; from < m_points.size();) {
        std::size_t to = from;
        while (to < m_points.size() && isSameMonth(m_days[from], m_days[to]))
            ++to;
        months.push_back(
            {m_days[from].toString(u"MM/yyyy"), sumOf(std::span(m_points).subspan(from, to - from))});
        from = to;
    }
    m_points = std::move(months);
}

/// A ranking drops all other points. Shares keep the sum of the others as one more, or they would not make
/// up the whole.
void ChartPoints::keepLargest()
{
    std::erase_if(m_points, [](const ChartPoint& point) { return point.value <= Decimal(); });
    std::ranges::stable_sort(m_points, std::ranges::greater(), &ChartPoint::value);
    const bool isShares = m_layout.kind == ChartKind::Shares;
    std::size_t most = m_layout.most > 0 ? static_cast<std::size_t>(m_layout.most) : m_points.size();
    if (isShares)
        most = std::min(most, mostShares);
    if (m_points.size() <= most)
        return;
    const ChartPoint others{u"Others"_s, isShares ? sumOf(std::span(m_points).subspan(most)) : Decimal()};
    m_points.resize(most);
    if (isShares)
        m_points.push_back(others);
}

ChartBuilder::ChartBuilder(const ReportLayout& layout)
{
    for (const auto& chart : layout.charts)
        m_charts.emplace_back(chart);
}

void ChartBuilder::addLine(const LineFields& fields, const SlotNumbers& numbers)
{
    for (auto& chart : m_charts) {
        if (chart.layout().from == PointSource::Lines)
            chart.add(textOf(chart.layout().label, fields), numbers);
    }
}

void ChartBuilder::addGroup(const QString& heading, const SlotNumbers& totals)
{
    for (auto& chart : m_charts) {
        if (chart.layout().from == PointSource::Groups)
            chart.add(heading, totals);
    }
}

} // namespace norvane::reports
