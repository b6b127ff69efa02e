// Rulers along the upper and the left edge of a view.
#pragma once

#include <QPointF>
#include <QSize>

class QPainter;

namespace norvane::overlay
{

/// In pixels; perpendicular to its edge.
inline constexpr int rulerWidth = 24;

/// Paints both rulers over a view of @p size pixels. They count millimetres, of @p pixels each, from
/// @p origin.
void paintRulers(QPainter& painter, QSize size, QPointF origin, double pixels);

} // namespace norvane::overlay
