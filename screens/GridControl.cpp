// See GridControl.h.
#include "screens/GridControl.h"

#include "paper/Length.h"
#include "screens/GridModel.h"
#include "ui/TextBox.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

namespace norvane::screens
{
namespace
{

constexpr int heightOfRow = 24;

/// Cells are edited in the box that the fields of a screen have, which takes what registers know.
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
    verticalHeader()->setDefaultSectionSize(heightOfRow);
    horizontalHeader()->setHighlightSections(false);
}

void GridControl::showQuery(const std::shared_ptr<store::Database>& database,
                            const ControlDefinition& definition)
{
    auto* const grid = new GridModel(database, definition.sqlCriteria, definition.gridColumns, this);
    // The message may open only after the view is done with the editor that it closes.
    connect(grid, &GridModel::refused, this, &GridControl::dataError, Qt::QueuedConnection);
    delete model();
    setModel(grid);
    for (int column = 0; column < definition.gridColumns.size(); ++column) {
        const GridColumn& told = definition.gridColumns[column];
        if (told.width)
            setColumnWidth(column, paper::screenPixels(paper::twips(*told.width)));
        setColumnHidden(column, !told.visible);
    }
}

void GridControl::retryCell(const QModelIndex& index)
{
    setFocus();
    setCurrentIndex(index);
    edit(index);
    // The editor that was closed may be around still; the one opened now is the last.
    if (const auto editors = viewport()->findChildren<QLineEdit*>(); !editors.isEmpty())
        editors.last()->clear();
}

} // namespace norvane::screens
