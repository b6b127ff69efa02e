// See RankingChart.cpp; painted by paintChart().
#pragma once

#include "reports/data/Chart.h"
#include "reports/pages/PageFont.h"

class QPainter;

namespace norvane::reports
{

/// The height that the chart of @p width looks best with, without its title; all in mm.
[[nodiscard]] double rankingHeight(const Chart& chart, double width);
void paintRanking(QPainter& painter, const QRectF& place, const Chart& chart, const PageFont& font);

} // namespace norvane::reports
