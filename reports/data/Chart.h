// What a chart shows.
#pragma once

#include "platform/Decimal.h"
#include "reports/data/ShownNumber.h"

#include <QString>

#include <vector>

namespace norvane::reports
{

/// Kinds of charts.
enum class ChartKind {
    Ranking, ///< horizontal bars, the longest first
    Course,  ///< upright bars over days or hours, in their order
    Shares   ///< parts of a whole
};

/// A point of a chart.
struct ChartPoint {
    QString label;
    Decimal value;
};

/// A chart beside the lines.
struct Chart {
    ChartKind kind = ChartKind::Ranking;
    QString title;
    int leastDecimals = 2; ///< of the values as shown
    int mostDecimals = 2;
    std::vector<ChartPoint> points;
    NumberDress dress = {true, {}};
};

/// The value of a point as the chart shows it.
[[nodiscard]] QString shownValue(const Chart& chart, const Decimal& value);

} // namespace norvane::reports
