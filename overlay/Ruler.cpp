// See Ruler.h.
#include "overlay/Ruler.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

#include <cmath>

namespace norvane::overlay
{
namespace
{

constexpr double closestTicks = 4;   ///< in pixels
constexpr double closestLabels = 30; ///< in pixels

struct Steps {
    int tick;
    int label;
};

/// The millimetres between ticks and labels that are far enough apart.
Steps stepsFor(double pixels)
{
    int tick = 1;
    for (const int longer : {5, 10, 50})
        tick = tick * pixels < closestTicks ? longer : tick;
    const int label = 10 * pixels < closestLabels ? 50 : 10;
    return {tick, label};
}

int tickLength(int place, const Steps& steps)
{
    return place % steps.label == 0 ? 10 : place % 5 == 0 ? 6 : 3;
}

/// The millimetres of a ruler of @p length pixels, @p visit gets each with its pixel.
template <typename Visit>
void forEachPlace(int length, double origin, double pixels, int step, Visit visit)
{
    const int first = static_cast<int>(std::floor((rulerWidth - origin) / pixels / step)) * step;
    for (int place = qMax(0, first); origin + place * pixels < length; place += step)
        visit(place, qRound(origin + place * pixels));
}

/// The lines of one ruler, drawn as if it were at the upper edge.
void paintTicks(QPainter& painter, int length, double origin, double pixels)
{
    const QPalette palette = QGuiApplication::palette();
    painter.fillRect(0, 0, length, rulerWidth, palette.window());
    painter.setPen(palette.color(QPalette::PlaceholderText));
    painter.drawLine(0, rulerWidth - 1, length, rulerWidth - 1);
    const Steps steps = stepsFor(pixels);
    forEachPlace(length, origin, pixels, steps.tick, [&](int place, int at) {
        painter.drawLine(at, rulerWidth - 1 - tickLength(place, steps), at, rulerWidth - 2);
    });
}

} // namespace

void paintRulers(QPainter& painter, QSize size, QPointF origin, double pixels)
{
    const int label = stepsFor(pixels).label;
    painter.save();
    QFont font = painter.font();
    font.setPixelSize(9);
    painter.setFont(font);
    painter.save();
    painter.setTransform(QTransform(0, 1, 1, 0, 0, 0), true);
    paintTicks(painter, size.height(), origin.y(), pixels);
    painter.restore();
    paintTicks(painter, size.width(), origin.x(), pixels);
    const QPalette palette = QGuiApplication::palette();
    painter.setPen(palette.color(QPalette::WindowText));
    forEachPlace(size.width(), origin.x(), pixels, label,
                 [&](int place, int at) { painter.drawText(at + 2, 10, QString::number(place)); });
    forEachPlace(size.height(), origin.y(), pixels, label,
                 [&](int place, int at) { painter.drawText(2, at + 10, QString::number(place)); });
    painter.fillRect(0, 0, rulerWidth, rulerWidth, palette.window());
    painter.setPen(palette.color(QPalette::PlaceholderText));
    painter.drawText(QRect(0, 0, rulerWidth, rulerWidth), Qt::AlignCenter, QStringLiteral("mm"));
    painter.restore();
}

} // namespace norvane::overlay
