// See KeyboardGround.h.
#include "overlay/KeyboardGround.h"

#include "overlay/SheetPainter.h"
#include "ui/Appearance.h"

#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace norvane::overlay
{
namespace
{

/// Around the keys, in millimetres.
constexpr double groundMargin = 3;
/// A key's frame, in pixels.
constexpr int keyFrame = 1;

QRectF boundsOf(const OverlayLayout& layout)
{
    QRectF bounds;
    for (const OverlayKey& key : layout.keys())
        bounds |= key.outline();
    return bounds.adjusted(-groundMargin, -groundMargin, groundMargin, groundMargin);
}

} // namespace

KeyboardGround::KeyboardGround(const OverlayLayout& layout, QWidget* parent)
    : QWidget(parent), m_layout(layout), m_bounds(boundsOf(layout)), m_scale(paper::screenPixelsPerMillimetre)
{
}

void KeyboardGround::setScale(double scale)
{
    m_scale = scale;
    const QSizeF whole = m_bounds.size() * scale;
    resize(static_cast<int>(whole.width()), static_cast<int>(whole.height()));
    refreshPaper();
}

void KeyboardGround::showPaper(const Document* document)
{
    m_document = document;
    refreshPaper();
}

void KeyboardGround::refreshPaper()
{
    m_paper = {};
    update();
}

void KeyboardGround::mousePressEvent(QMouseEvent* event)
{
    m_pressedAt = event->pos();
    Q_EMIT draggedTo(m_pressedAt, m_pressedAt);
}

void KeyboardGround::mouseMoveEvent(QMouseEvent* event)
{
    if (event->buttons().testFlag(Qt::LeftButton))
        Q_EMIT draggedTo(m_pressedAt, event->pos());
}

QRect KeyboardGround::pixels(const QRectF& place) const
{
    const auto pixel = [this](double length) {
        return static_cast<int>(std::lround(length * m_scale));
    };
    const QPoint corner(pixel(place.left() - m_bounds.left()), pixel(place.top() - m_bounds.top()));
    const QPoint end(pixel(place.right() - m_bounds.left()), pixel(place.bottom() - m_bounds.top()));
    return {corner, end - QPoint(1, 1)};
}

QPointF KeyboardGround::millimetres(QPoint pixel) const
{
    return QPointF(pixel) / m_scale + m_bounds.topLeft();
}

/// The paper is kept: cells are painted on it one by one, as the cursor blinks.
void KeyboardGround::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (m_document == nullptr) {
        paintFrames(painter);
        return;
    }
    if (m_paper.isNull())
        m_paper = paintedPaper();
    painter.drawPixmap(0, 0, m_paper);
}

void KeyboardGround::paintFrames(QPainter& painter) const
{
    painter.fillRect(rect(), ui::colours::desktop());
    painter.setPen(QPen(ui::colours::greyedText, keyFrame));
    painter.setBrush(Qt::white);
    for (const OverlayKey& key : m_layout.keys())
        painter.drawRect(pixels(key.outline()).adjusted(-keyFrame, -keyFrame, 0, 0));
}

QPixmap KeyboardGround::paintedPaper() const
{
    QPixmap paper(size() * devicePixelRatioF());
    paper.setDevicePixelRatio(devicePixelRatioF());
    paper.fill(Qt::white);
    QPainter painter(&paper);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(m_scale, m_scale);
    painter.translate(-m_bounds.topLeft());
    SheetPainter(painter, *m_document).paint();
    return paper;
}

} // namespace norvane::overlay
