// How a key looks in the grid.
#pragma once

#include <QStyledItemDelegate>

namespace norvane::keys
{

/// Paints a cell in the colour of what its key does, with a mark whose shape has the same meaning: a circle
/// for a function, a triangle for a PLU, a square for a window look-up, a lock for a fixed key, a cross for
/// an item that is missing.
class KeyCellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

/// Explains colours and marks.
class KeyLegend : public QWidget
{
    Q_OBJECT

public:
    explicit KeyLegend(QWidget* parent);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace norvane::keys
