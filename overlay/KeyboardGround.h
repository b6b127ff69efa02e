// What is below the cells of an overlay on the screen.
#pragma once

#include "overlay/OverlayLayout.h"

#include <QPixmap>
#include <QWidget>

namespace norvane::overlay
{

class Document;

/// The keyboard in its shape: frames of keys on a plain ground, or the sheet as it will be on paper.
class KeyboardGround : public QWidget
{
    Q_OBJECT

public:
    KeyboardGround(const OverlayLayout& layout, QWidget* parent);

    [[nodiscard]] QSizeF sizeInMillimetres() const { return m_bounds.size(); }
    /// Pixels to the millimetre.
    [[nodiscard]] double scale() const { return m_scale; }
    void setScale(double scale);
    /// Shows the keys of @p document as they print, or the frames of keys for null. It must outlive this.
    void showPaper(const Document* document);
    /// Has the paper painted again: the document has changed.
    void refreshPaper();
    /// Edges of cells that touch fall on the same pixel.
    [[nodiscard]] QRect pixels(const QRectF& place) const;
    [[nodiscard]] QPointF millimetres(QPoint pixel) const;

Q_SIGNALS:
    /// A press between the keys, and each move of a drag that began there.
    void draggedTo(QPoint from, QPoint to);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void paintFrames(QPainter& painter) const;
    [[nodiscard]] QPixmap paintedPaper() const;

    const OverlayLayout& m_layout;
    QRectF m_bounds; ///< of all keys, in millimetres
    double m_scale;
    QPoint m_pressedAt;
    const Document* m_document = nullptr; ///< null while frames are shown
    QPixmap m_paper;                      ///< null if it is outdated
};

} // namespace norvane::overlay
