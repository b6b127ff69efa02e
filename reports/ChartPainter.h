// Paints the pictures beside a report's lines. Every value stands in words as well, and what must be told
// apart differs in lightness, so that they read in black and white.
#pragma once

#include "reports/PageText.h"

class QPainter;

namespace norvane::reports
{

/// The height that @p chart of @p width looks best with; all in mm.
[[nodiscard]] double chartHeight(const Chart& chart, double width);

/// Paints @p chart into @p place. @param painter in millimetres.
void paintChart(QPainter& painter, const QRectF& place, const Chart& chart, const PageText& text);

} // namespace norvane::reports
