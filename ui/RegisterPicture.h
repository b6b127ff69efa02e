// A small drawing of a cash register: the program's icon and the picture of the splash.
#pragma once

class QPainter;
class QRectF;

namespace norvane::ui
{

/// Draws the register in white and pale tones, as large as fits into @p place, for a dark ground.
void paintRegister(QPainter& painter, const QRectF& place);

} // namespace norvane::ui
