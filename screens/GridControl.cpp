// See GridControl.h.
#include "screens/GridControl.h"

#include "paper/Length.h"
#include "ui/Appearance.h"
#include "ui/TextBox.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

namespace norvane::screens
{
namespace
{

/// At the usual font, in pixels.
constexpr int usualRowHeight = 24;

int heightOfRow()
{
    return ui::scaled(usualRowHeight);
}

/// Cells are edited in the boxes that screens use, which take what registers can hold.
class CellDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                          const QModelIndex& /*index*/) const override
    {
        auto* const box = new ui::TextBox(parent);
        box->setFrame(false);
        return box;
    }

    /// A box emptied for another try and then left must not empty the cell.
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override
    {
        if (static_cast<const ui::TextBox*>(editor)->isModified())
            QStyledItemDelegate::setModelData(editor, model, index);
    }
};

} // namespace

GridControl::GridControl(QWidget* parent) : QTableView(parent)
{
    setItemDelegate(new CellDelegate(this));
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setEditTriggers(AnyKeyPressed | EditKeyPressed | DoubleClicked | SelectedClicked);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(heightOfRow());
    horizontalHeader()->setHighlightSections(false);
}

void GridControl::showQuery(const std::shared_ptr<store::Database>& database,
                            const ControlDefinition& definition)
{
    auto* const grid = new GridModel(database, definition.sqlCriteria, definition.gridColumns, this);
    // The message may open only after the view has closed the editor.
    connect(grid, &GridModel::refused, this, &GridControl::dataError, Qt::QueuedConnection);
    connect(grid, &GridModel::stored, this, &GridControl::stored);
    delete model();
    setModel(grid);
    if (m_recorder)
        grid->setRecorder(m_recorder);
    for (int column = 0; column < definition.gridColumns.size(); ++column) {
        const GridColumn& given = definition.gridColumns[column];
        if (given.width)
            setColumnWidth(column, ui::scaled(paper::screenPixels(paper::twips(*given.width))));
        setColumnHidden(column, !given.visible);
    }
}

void GridControl::setRecorder(const GridModel::Recorder& recorder)
{
    m_recorder = recorder;
    if (auto* const grid = static_cast<GridModel*>(model()))
        grid->setRecorder(recorder);
}

void GridControl::reread()
{
    if (state() == EditingState)
        return;
    auto* const rows = static_cast<GridModel*>(model());
    const int current = currentIndex().row();
    const int column = currentIndex().column();
    const int row = rows->reread(qMax(current, lastVisibleRow()) + 1, current);
    if (row != current)
        setCurrentIndex(rows->index(row, column));
}

/// There is no row below the last one.
int GridControl::lastVisibleRow() const
{
    const int row = rowAt(viewport()->height() - 1);
    return row < 0 ? model()->rowCount() - 1 : row;
}

bool GridControl::findRow(const QString& part, int from)
{
    auto* const rows = static_cast<GridModel*>(model());
    const int row = rows->findRow(part, from);
    if (row < 0)
        return false;
    setCurrentIndex(rows->index(row, qMax(0, currentIndex().column())));
    scrollTo(currentIndex(), PositionAtCenter);
    return true;
}

void GridControl::enterRow()
{
    setFocus();
    for (int column = 0; column < model()->columnCount(); ++column) {
        const QModelIndex cell = currentIndex().siblingAtColumn(column);
        if (!isColumnHidden(column) && cell.flags().testFlag(Qt::ItemIsEditable))
            return setCurrentIndex(cell);
    }
}

/// The space for the rows is known only when headers and scroll bars have their places.
void GridControl::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    QMetaObject::invokeMethod(this, &GridControl::cutToWholeRows, Qt::QueuedConnection);
}

void GridControl::cutToWholeRows()
{
    const int cut = viewport()->height() % heightOfRow();
    if (cut != 0 && viewport()->height() > heightOfRow())
        resize(width(), height() - cut);
}

void GridControl::retryCell(const QModelIndex& index)
{
    setFocus();
    setCurrentIndex(index);
    edit(index);
    // The closed editor may still exist; the new one is the last.
    if (const auto editors = viewport()->findChildren<QLineEdit*>(); !editors.isEmpty())
        editors.last()->setText({}); // unlike clear(), this is not a change by the user
}

} // namespace norvane::screens
