// The drawing of a register; see RegisterPicture.h.
#include "ui/RegisterPicture.h"

#include "ui/Appearance.h"

#include <QPainter>

namespace norvane::ui
{
namespace
{

/// The drawing is made on a square of 100 by 100.
constexpr double canvas = 100;
constexpr int keyColumns = 4;
constexpr int keyRows = 3;

void drawPart(QPainter& painter, const QRectF& place, const QColor& colour, double corner)
{
    painter.setBrush(colour);
    painter.drawRoundedRect(place, corner, corner);
}

void drawDisplay(QPainter& painter)
{
    drawPart(painter, {44, 2, 46, 20}, Qt::white, 3);
    drawPart(painter, {49, 7, 36, 10}, colours::accentDark, 1.5);
    drawPart(painter, {62, 20, 10, 10}, colours::linePale, 0);
}

void drawReceipt(QPainter& painter)
{
    drawPart(painter, {14, 8, 22, 32}, Qt::white, 1);
    for (const double y : {14.0, 20.0, 26.0})
        drawPart(painter, {18, y, 14, 2.5}, colours::linePale, 0);
}

void drawKeyboard(QPainter& painter)
{
    const QPointF panel[] = {{12, 30}, {88, 30}, {96, 68}, {4, 68}};
    painter.setBrush(QColor(0xe6, 0xec, 0xf1));
    painter.drawConvexPolygon(panel, 4);
    for (int row = 0; row < keyRows; ++row) {
        for (int column = 0; column < keyColumns; ++column)
            drawPart(painter, {40 + column * 12.0 - row, 35 + row * 10.5, 9, 7}, colours::accent, 1.5);
    }
    drawPart(painter, {15, 46, 18, 17.5}, QColor(0xf2, 0xa6, 0x3b), 2);
}

void drawDrawer(QPainter& painter)
{
    drawPart(painter, {2, 71, 96, 26}, Qt::white, 3);
    drawPart(painter, {38, 82, 24, 5}, colours::accent, 2.5);
}

} // namespace

void paintRegister(QPainter& painter, const QRectF& place)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double side = qMin(place.width(), place.height());
    painter.translate(place.center().x() - side / 2, place.center().y() - side / 2);
    painter.scale(side / canvas, side / canvas);
    drawReceipt(painter);
    drawDisplay(painter);
    drawKeyboard(painter);
    drawDrawer(painter);
    painter.restore();
}

} // namespace norvane::ui
