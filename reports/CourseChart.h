// See CourseChart.cpp; painted by paintChart().
#pragma once

#include "reports/PageText.h"

class QPainter;

namespace norvane::reports
{

/// The height that the picture looks best with, without its title, in mm.
[[nodiscard]] double courseHeight(const Chart& chart);
void paintCourse(QPainter& painter, const QRectF& place, const Chart& chart, const PageText& text);

} // namespace norvane::reports
