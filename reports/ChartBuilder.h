// Collects the points of a report's pictures.
#pragma once

#include "reports/FieldTexts.h"
#include "reports/ReportLayout.h"

#include <QDate>

#include <vector>

namespace norvane::reports
{

/// One picture on its way: points as they come, then the best, or days put together to months.
class ChartPoints
{
public:
    explicit ChartPoints(const ChartLayout& layout) : m_layout(layout) {}

    [[nodiscard]] const ChartLayout& layout() const { return m_layout; }
    /// @param day of a picture over days.
    void add(const QString& label, const SlotNumbers& numbers, QDate day = {});
    /// @param moneyDecimals of the shop. @return a picture without points when there is nothing to see.
    [[nodiscard]] Chart finished(int moneyDecimals);

private:
    void putMonthsTogether();
    void keepLargest();

    const ChartLayout& m_layout;
    std::vector<ChartPoint> m_points;
    std::vector<QDate> m_days; ///< of the points of a picture over days
};

/// The pictures that are made from the lines and groups of the report itself.
class ChartBuilder
{
public:
    explicit ChartBuilder(const ReportLayout& layout);

    void addLine(const LineFields& fields, const SlotNumbers& numbers);
    void addGroup(const QString& heading, const SlotNumbers& totals);
    /// In the order of the layout; those with a query of their own get their points by it.
    [[nodiscard]] std::vector<ChartPoints>& charts() { return m_charts; }

private:
    std::vector<ChartPoints> m_charts;
};

} // namespace norvane::reports
