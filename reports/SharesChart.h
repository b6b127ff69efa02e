// See SharesChart.cpp; painted by paintChart().
#pragma once

#include "reports/PageText.h"

class QPainter;

namespace norvane::reports
{

/// The height that the picture looks best with, without its title, in mm.
[[nodiscard]] double sharesHeight(const Chart& chart);
void paintShares(QPainter& painter, const QRectF& place, const Chart& chart, const PageText& text);

} // namespace norvane::reports
