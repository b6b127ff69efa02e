// The sheet on the screen as it will be on the paper.
#pragma once

#include "overlay/SheetPages.h"
#include "paper/ZoomedView.h"
#include "ui/SpokenItems.h"

namespace norvane::overlay
{

/// Shows the whole page between rulers that count millimetres from the paper's edges, the printable area of
/// the printer, and a mark on each key that leaves it. Zoomed with Ctrl and the wheel, plus and minus; moved
/// with the bars, the arrows and the mouse. Screen readers find the keys on it.
class SheetView : public paper::ZoomedView, public ui::SpokenItems
{
    Q_OBJECT

public:
    /// @p document must outlive this.
    SheetView(const Document& document, QWidget* parent);

    /// Shows the sheet as it will be on this printer's paper.
    void setTarget(const TargetPrinter& target);
    [[nodiscard]] int pageCount() const { return static_cast<int>(m_pages.size()); }
    /// The page that is shown, from 0.
    [[nodiscard]] int page() const { return m_page; }
    /// @param page from 0 to pageCount() - 1.
    void showPage(int page);
    void setZoom(paper::Zoom zoom) override;
    /// A size of the user's own, within limits.
    void setPixelsPerMillimetre(double pixels) { zoomTo(pixels); }
    /// Where a place of the paper, in mm from its corner, is in the viewport.
    [[nodiscard]] QPointF toViewport(QPointF place) const;

    [[nodiscard]] int spokenItemCount() const override;
    [[nodiscard]] ui::SpokenItem spokenItem(int index) const override;

Q_SIGNALS:
    /// The user has zoomed to another size.
    void zoomedFreely();

protected:
    [[nodiscard]] QSizeF sheetSize() const override { return m_target.sheet.rect().size(); }
    [[nodiscard]] QSizeF surroundings() const override;
    [[nodiscard]] QSizeF contentsSize() const override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] QPointF sheetCorner() const;
    [[nodiscard]] const SheetPage& shownPage() const { return m_pages[static_cast<std::size_t>(m_page)]; }
    [[nodiscard]] QPointF keysCorner() const;
    void zoomBy(double factor, QPointF fixed);
    void paintSheet(QPainter& painter) const;
    void paintOutside(QPainter& painter) const;

    const Document& m_document;
    TargetPrinter m_target;
    std::vector<SheetPage> m_pages{SheetPage()};
    int m_page = 0;
    std::vector<std::size_t> m_outside; ///< keys that leave the printable area
    QPoint m_dragged;
};

} // namespace norvane::overlay
