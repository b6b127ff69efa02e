// Paints the charts beside a report's lines. Charts must be readable in black and white too: parts that must
// be distinguished differ in lightness, and rankings and shares show each value as a number too.
#pragma once

#include "reports/data/Chart.h"
#include "reports/pages/PageFont.h"

class QPainter;

namespace norvane::reports
{

/// The height that @p chart of @p width looks best with; all in mm.
[[nodiscard]] double chartHeight(const Chart& chart, double width);

/// Paints @p chart into @p place. @param painter in millimetres.
void paintChart(QPainter& painter, const QRectF& place, const Chart& chart, const PageFont& font);

} // namespace norvane::reports
