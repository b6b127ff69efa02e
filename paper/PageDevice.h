// Paper that is drawn on page by page: a PDF file or a printer.
#pragma once

#include <QImage>
#include <QPagedPaintDevice>
#include <QPageLayout>
#include <QPainter>

namespace norvane::paper
{

/// Pages on a device, painted in millimetres from the sheet's upper left corner: what a printer cannot reach
/// at its edges is cut off, and nothing moves. A unit of the painter is a millimetre.
class PageDevice
{
public:
    /// @param device not painted on yet; must outlive this.
    PageDevice(QPagedPaintDevice& device, const QPageSize& sheet, QPageLayout::Orientation orientation);

    /// Begins the next page, or the first. @return the painter; it paints nowhere once the device has failed.
    QPainter& nextPage();
    /// Ends the last page. @return false when the device failed since it began.
    [[nodiscard]] bool finish();

private:
    void startAtCorner();

    QPagedPaintDevice& m_device;
    /// Takes what is painted when the device cannot be begun: a painter without a device complains about each
    /// stroke.
    QImage m_nowhere{1, 1, QImage::Format_Mono};
    QPainter m_painter;
    bool m_isBegun = false;
    bool m_hasFailed = false;
};

} // namespace norvane::paper
