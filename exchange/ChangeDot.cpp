// See ChangeDot.h.
#include "exchange/ChangeDot.h"

#include "ui/Appearance.h"

#include <QPainter>

namespace norvane::exchange
{
namespace
{

constexpr int dotSize = 8;
constexpr double ringWidth = 2;

} // namespace

ChangeDot::ChangeDot(QWidget* parent) : QWidget(parent)
{
    setFixedWidth(ui::scaled(dotSize));
}

void ChangeDot::setMark(Mark mark)
{
    m_mark = mark;
    update();
}

void ChangeDot::paintEvent(QPaintEvent* /*event*/)
{
    if (m_mark == Mark::None)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor colour = ui::colours::yielding(ui::colours::found, QPalette::WindowText);
    const double pen = m_mark == Mark::Ring ? ringWidth : 0;
    painter.setPen(pen > 0 ? QPen(colour, pen) : QPen(Qt::NoPen));
    painter.setBrush(pen > 0 ? QBrush() : QBrush(colour));
    const double radius = (width() - pen) / 2;
    painter.drawEllipse(QRectF(rect()).center(), radius, radius);
}

} // namespace norvane::exchange
