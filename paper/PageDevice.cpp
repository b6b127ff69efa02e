// See PageDevice.h.
#include "paper/PageDevice.h"

#include "paper/Length.h"

namespace norvane::paper
{
PageDevice::PageDevice(QPagedPaintDevice& device, const QPageSize& sheet,
                       QPageLayout::Orientation orientation)
    : m_device(device)
{
    // With margins of the device, all that is painted would move by them.
    QPageLayout layout(sheet, orientation, QMarginsF());
    layout.setMode(QPageLayout::FullPageMode);
    device.setPageLayout(layout);
}

QPainter& PageDevice::nextPage()
{
    const bool began = m_isBegun ? m_device.newPage() : m_painter.begin(&m_device);
    m_hasFailed = m_hasFailed || !began;
    if (!m_isBegun && began) {
        startAtCorner();
    } else if (!m_isBegun) {
        m_painter.begin(&m_nowhere);
    }
    m_isBegun = true;
    return m_painter;
}

/// Printers with margins do not use the full page; their origin is inside the margins.
void PageDevice::startAtCorner()
{
    const Length millimetre = millimetres(1);
    m_painter.scale(millimetre.inDots(m_device.logicalDpiX()), millimetre.inDots(m_device.logicalDpiY()));
    const QPageLayout layout = m_device.pageLayout();
    if (layout.mode() == QPageLayout::FullPageMode)
        return;
    const QMarginsF margins = layout.margins(QPageLayout::Millimeter);
    m_painter.translate(-margins.left(), -margins.top());
}

bool PageDevice::finish()
{
    return m_painter.end() && !m_hasFailed;
}

} // namespace norvane::paper
