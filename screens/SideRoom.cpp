// See SideRoom.h.
#include "screens/SideRoom.h"

#include <QLayout>
#include <QWidget>

namespace norvane::screens
{

void SideRoom::widen(int pixels)
{
    QWidget* const frame = m_form.isWindow() ? &m_form : m_form.parentWidget();
    if (frame->isMaximized())
        return;
    const int room = m_form.isWindow() ? QWIDGETSIZE_MAX : frame->parentWidget()->width();
    const int width = qMin(room, frame->width() + (pixels > 0 ? pixels : -m_widened));
    m_widened = pixels > 0 ? width - frame->width() : 0;
    if (!m_form.isWindow())
        frame->move(qBound(0, frame->x(), room - width), frame->y());
    m_form.layout()->activate(); // until then the former width counts as the smallest
    frame->resize(width, frame->height());
}

} // namespace norvane::screens
