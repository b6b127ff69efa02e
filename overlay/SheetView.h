// The sheet on the screen as it will be on the paper.
#pragma once

#include "overlay/SheetPrint.h"
#include "ui/SpokenItems.h"

#include <QAbstractScrollArea>

namespace norvane::overlay
{

/// Shows the whole page between rulers that count millimetres from the paper's edges, the printable area of
/// the printer, and a mark on each key that leaves it. Zoomed with Ctrl and the wheel, plus and minus; moved
/// with the bars, the arrows and the mouse. Screen readers find the keys on it.
class SheetView : public QAbstractScrollArea, public ui::SpokenItems
{
    Q_OBJECT

public:
    enum class Zoom { FitPage, FitWidth, TrueSize, Free };

    /// @p document must outlive this.
    SheetView(const Document& document, QWidget* parent);

    /// Shows the sheet as it will be on this printer's paper.
    void setTarget(const TargetPrinter& target);
    void setZoom(Zoom zoom);
    [[nodiscard]] double pixelsPerMillimetre() const { return m_scale; }
    /// A size of the user's own, within limits.
    void setPixelsPerMillimetre(double pixels);
    /// Where a place of the paper, in mm from its corner, is in the viewport.
    [[nodiscard]] QPointF toViewport(QPointF place) const;

    [[nodiscard]] int spokenItemCount() const override;
    [[nodiscard]] ui::SpokenItem spokenItem(int index) const override;

Q_SIGNALS:
    /// The user has zoomed to another size.
    void zoomedFreely();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    [[nodiscard]] QPointF sheetCorner() const;
    [[nodiscard]] QPointF keysCorner() const;
    void takeScale();
    void updateBars();
    void zoomBy(double factor, QPointF fixed);
    void paintSheet(QPainter& painter) const;
    void paintOutside(QPainter& painter) const;

    const Document& m_document;
    TargetPrinter m_target;
    std::vector<std::size_t> m_outside; ///< keys that leave the printable area
    Zoom m_zoom = Zoom::FitPage;
    double m_scale = 1;
    QPoint m_dragged;
};

} // namespace norvane::overlay
