// See KeyGrid.h.
#include "keys/layout/KeyGrid.h"

#include "keys/layout/KeyCellDelegate.h"
#include "keys/layout/KeyZoom.h"
#include "ui/FormKit.h"

#include <QDrag>
#include <QHash>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>
#include <QWheelEvent>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

void fixSections(QHeaderView& header)
{
    header.hide();
    header.setSectionResizeMode(QHeaderView::Fixed);
    header.setMinimumSectionSize(1);
}

/// What a wheel reports for one of its notches; a touch pad reports parts of it.
constexpr int wheelNotch = 120;

} // namespace

KeyGrid::KeyGrid(KeyGridModel* model, QWidget* parent) : QTableView(parent), m_keys(*model)
{
    ui::nameControl(*this, u"Grid1"_s, u"Keys of the level"_s);
    setModel(model);
    setItemDelegate(new KeyCellDelegate(this));
    for (QHeaderView* const header : {verticalHeader(), horizontalHeader()})
        fixSections(*header);
    setKeySize(KeyZoom::usualSize());
    setTabKeyNavigation(false);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(ExtendedSelection);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setContextMenuPolicy(Qt::ActionsContextMenu);
}

void KeyGrid::setCurrentCell(KeyCell cell)
{
    // The view's own way looks at the keys that are held down.
    selectionModel()->setCurrentIndex(model()->index(cell.row, cell.column),
                                      QItemSelectionModel::ClearAndSelect);
}

void KeyGrid::choose(const KeyCells& cells, KeyCell current)
{
    setCurrentCell(current);
    for (const KeyCell cell : cells)
        selectionModel()->select(model()->index(cell.row, cell.column), QItemSelectionModel::Select);
}

KeyCells KeyGrid::chosenCells() const
{
    KeyCells cells;
    for (const QModelIndex& index : selectionModel()->selectedIndexes())
        cells.push_back(KeyGridModel::cellOf(index));
    if (cells.empty() && currentIndex().isValid())
        cells.push_back(currentCell());
    return cells;
}

void KeyGrid::showPreview(const std::vector<FilledKey>& keys)
{
    m_keys.setPreview(keys);
}

QSize KeyGrid::keySize() const
{
    return {horizontalHeader()->defaultSectionSize(), verticalHeader()->defaultSectionSize()};
}

int KeyGrid::zoomPercent() const
{
    return KeyZoom::percentOf(keySize());
}

/// The current key keeps in sight: it is what the user looks at.
void KeyGrid::setKeySize(QSize key)
{
    horizontalHeader()->setDefaultSectionSize(key.width());
    verticalHeader()->setDefaultSectionSize(key.height());
    if (currentIndex().isValid())
        scrollTo(currentIndex());
}

void KeyGrid::fitKeyboard()
{
    m_fits = true;
    fitNow();
    Q_EMIT zoomChanged();
}

/// Without regard to the bars that scroll: once all keys fit, there are none.
void KeyGrid::fitNow()
{
    setKeySize(KeyZoom::fitting({model()->columnCount(), model()->rowCount()}, maximumViewportSize()));
}

void KeyGrid::zoomBy(int steps)
{
    m_fits = false;
    setKeySize(KeyZoom::sizeAt(zoomPercent() + steps * KeyZoom::stepPercent));
    Q_EMIT zoomChanged();
}

void KeyGrid::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    if (m_fits)
        fitNow();
}

void KeyGrid::wheelEvent(QWheelEvent* event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QTableView::wheelEvent(event);
        return;
    }
    m_wheel += event->angleDelta().y();
    if (const int steps = m_wheel / wheelNotch; steps != 0)
        zoomBy(steps);
    m_wheel %= wheelNotch;
    event->accept();
}

QSize KeyGrid::sizeHint() const
{
    const int frame = 2 * frameWidth();
    return {horizontalHeader()->length() + frame, verticalHeader()->length() + frame};
}

/// The view's own way begins at the cell that was clicked or walked to last, not at one that a search, a drop
/// or the opening has led to.
void KeyGrid::extendTo(const QModelIndex& end)
{
    m_extends = true;
    selectionModel()->setCurrentIndex(end, QItemSelectionModel::NoUpdate);
    m_extends = false;
    const auto [top, bottom] = std::minmax({m_anchor.row(), end.row()});
    const auto [left, right] = std::minmax({m_anchor.column(), end.column()});
    selectionModel()->select({model()->index(top, left), model()->index(bottom, right)},
                             QItemSelectionModel::ClearAndSelect);
}

void KeyGrid::keyPressEvent(QKeyEvent* event)
{
    static const QHash<int, CursorAction> arrows{
        {Qt::Key_Left, MoveLeft}, {Qt::Key_Right, MoveRight}, {Qt::Key_Up, MoveUp}, {Qt::Key_Down, MoveDown}};
    if (event->modifiers().testFlag(Qt::ShiftModifier) && arrows.contains(event->key())) {
        extendTo(moveCursor(arrows.value(event->key()), Qt::NoModifier));
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        Q_EMIT entered();
        return;
    }
    QTableView::keyPressEvent(event);
    chooseCurrent();
}

/// With Ctrl, the view adds the cell to what is chosen before anybody knows whether it will be dragged.
void KeyGrid::mousePressEvent(QMouseEvent* event)
{
    m_pressedOutside = !selectionModel()->isSelected(indexAt(event->position().toPoint()));
    QTableView::mousePressEvent(event);
}

void KeyGrid::mouseReleaseEvent(QMouseEvent* event)
{
    QTableView::mouseReleaseEvent(event);
    chooseCurrent();
}

/// A cell that Ctrl removed from the selection is no longer the current one.
void KeyGrid::chooseCurrent()
{
    const QModelIndexList chosen = selectionModel()->selectedIndexes();
    if (!chosen.empty() && !chosen.contains(currentIndex()))
        selectionModel()->setCurrentIndex(chosen.last(), QItemSelectionModel::NoUpdate);
}

/// The selection follows the current cell with every key that moves it. With Ctrl it would remain, perhaps
/// out of sight, and be cut instead of the current key.
QItemSelectionModel::SelectionFlags KeyGrid::selectionCommand(const QModelIndex& index,
                                                              const QEvent* event) const
{
    if (event == nullptr || event->type() != QEvent::KeyPress)
        return QTableView::selectionCommand(index, event);
    const auto* const key = static_cast<const QKeyEvent*>(event);
    const bool moves = key->modifiers() == Qt::ControlModifier && key->key() != Qt::Key_Space;
    return moves ? QItemSelectionModel::ClearAndSelect : QTableView::selectionCommand(index, event);
}

/// The view's own way would clear the cells that were dragged away.
void KeyGrid::startDrag(Qt::DropActions actions)
{
    if (!model()->flags(currentIndex()).testFlag(Qt::ItemIsDragEnabled))
        return;
    if (m_pressedOutside)
        setCurrentCell(currentCell());
    auto* const drag = new QDrag(this);
    drag->setMimeData(model()->mimeData(selectedIndexes()));
    const QRect place = visualRegionForSelection(selectionModel()->selection()).boundingRect();
    drag->setPixmap(viewport()->grab(place));
    drag->setHotSpot(visualRect(currentIndex()).center() - place.topLeft());
    drag->exec(actions, Qt::MoveAction);
}

void KeyGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (!m_extends)
        m_anchor = current;
    Q_EMIT currentCellChanged();
}

} // namespace norvane::keys
