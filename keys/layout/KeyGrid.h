// The key grid: a view with a selected block of keys.
#pragma once

#include "keys/layout/KeyGridModel.h"

#include <QPersistentModelIndex>
#include <QTableView>

namespace norvane::keys
{

/// Arrow keys walk the keys; with Shift they choose several, as Shift and Ctrl with a click do. What is
/// chosen is dragged as a block; a drag that begins on another cell takes that cell alone. The current cell
/// is among the chosen ones.
class KeyGrid : public QTableView
{
    Q_OBJECT

public:
    KeyGrid(KeyGridModel* model, QWidget* parent);

    [[nodiscard]] KeyCell currentCell() const { return KeyGridModel::cellOf(currentIndex()); }
    /// Chooses this cell alone.
    void setCurrentCell(KeyCell cell);
    /// Chooses @p cells, of which @p current is the current one.
    void choose(const KeyCells& cells, KeyCell current);
    /// The current cell among them.
    [[nodiscard]] KeyCells chosenCells() const;

    /// KeyGridModel::setPreview().
    void showPreview(const std::vector<FilledKey>& keys);

    /// Shows the whole keyboard, and goes on doing so while the grid changes its size, until another zoom is
    /// set.
    void fitKeyboard();
    /// Makes the keys @p steps of the zoom larger, or smaller if negative.
    void zoomBy(int steps);
    [[nodiscard]] int zoomPercent() const;

    /// As large as all keys need.
    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// The user asked to choose an item for the current cell.
    void entered();
    void currentCellChanged();
    /// By the user, not with the size of the grid.
    void zoomChanged();

protected:
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags
    selectionCommand(const QModelIndex& index, const QEvent* event = nullptr) const override;
    void startDrag(Qt::DropActions actions) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void fitNow();
    void setKeySize(QSize key);
    [[nodiscard]] QSize keySize() const;
    void extendTo(const QModelIndex& end);
    void chooseCurrent();

    KeyGridModel& m_keys;
    QPersistentModelIndex m_anchor; ///< where a choice of several keys began
    bool m_extends = false;
    bool m_fits = false;           ///< the keys follow the size of the grid
    int m_wheel = 0;               ///< turned with Ctrl, less than a notch
    bool m_pressedOutside = false; ///< the mouse went down on a cell that was not chosen
};

} // namespace norvane::keys
