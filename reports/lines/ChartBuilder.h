// Collects the points of a report's charts.
#pragma once

#include "reports/lines/MoneyFormat.h"
#include "reports/lines/ReportLayout.h"
#include "reports/lines/TextTemplate.h"

#include <QDate>

#include <vector>

namespace norvane::reports
{

/// More bars than this cannot be distinguished on a page: a course over more days becomes one over months.
inline constexpr std::size_t mostDaysOfCourse = 62;

/// One chart in the making. It takes all points first; finished() then keeps the largest, or adds up days to
/// months when there are too many.
class ChartPoints
{
public:
    explicit ChartPoints(const ChartLayout& layout) : m_layout(layout) {}

    [[nodiscard]] const ChartLayout& layout() const { return m_layout; }
    /// @param day of the point, in a chart over days.
    void add(const QString& label, const SlotNumbers& numbers, QDate day = {});
    /// @param money how this shop shows money.
    /// @return a chart without points if there is nothing to show.
    [[nodiscard]] Chart finished(const MoneyFormat& money);
    /// Whether a value had more than 18 digits before the point: such a chart is left out.
    [[nodiscard]] bool isTooLarge() const { return m_isTooLarge; }

private:
    void putMonthsTogether();
    void keepLargest();

    const ChartLayout& m_layout;
    std::vector<ChartPoint> m_points;
    std::vector<QDate> m_days; ///< one for each point of a chart over days; else empty
    bool m_isTooLarge = false;
};

/// All charts of a report. Those over its lines or groups get their points here, as the lines are made.
class ChartBuilder
{
public:
    explicit ChartBuilder(const ReportLayout& layout);

    void addLine(const LineFields& fields, const SlotNumbers& numbers);
    void addGroup(const QString& heading, const SlotNumbers& totals);
    /// In the order of the layout. A chart with a separate query gets its points from it later.
    [[nodiscard]] std::vector<ChartPoints>& charts() { return m_charts; }

private:
    std::vector<ChartPoints> m_charts;
};

} // namespace norvane::reports
