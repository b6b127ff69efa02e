// See TableGrid.h.
#include "screens/table/TableGrid.h"

#include "screens/table/CellInput.h"
#include "screens/table/PastedBlock.h"
#include "screens/table/TableCellDelegate.h"
#include "screens/table/TableModel.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

/// Pixels at the usual font.
constexpr int rowPixels = 22;
constexpr int widestColumn = 220;
constexpr int columnPadding = 14; ///< the marked record is shown in bold
/// Rows by which columns are fitted.
constexpr int rowsToFit = 40;

/// Whether a key would change a cell; Escape does not.
bool isInput(const QEvent* event)
{
    const auto* const key = dynamic_cast<const QKeyEvent*>(event);
    if (key == nullptr || key->text().isEmpty())
        return false;
    return key->text().front().isPrint() || key->key() == Qt::Key_Delete || key->key() == Qt::Key_Backspace;
}

} // namespace

TableGrid::TableGrid(TableModel& model, QWidget* parent) : QTableView(parent), m_model(model)
{
    ui::nameControl(*this, u"TableView"_s);
    setModel(&model);
    auto* const delegate = new TableCellDelegate(this);
    setItemDelegate(delegate);
    connect(delegate, &TableCellDelegate::entered, this, &TableGrid::moveDown);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setEditTriggers(AnyKeyPressed | EditKeyPressed);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(ui::scaled(rowPixels));
    verticalHeader()->setDefaultSectionSize(ui::scaled(rowPixels));
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setSortIndicatorShown(true);
    horizontalHeader()->setSortIndicatorClearable(true);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    fitColumns();
}

void TableGrid::fitColumns()
{
    horizontalHeader()->setMaximumSectionSize(ui::scaled(widestColumn));
    horizontalHeader()->setResizeContentsPrecision(rowsToFit);
    resizeColumnsToContents();
    for (int column = 0; column < m_model.columnCount(); ++column)
        setColumnWidth(column, columnWidth(column) + ui::scaled(columnPadding));
}

void TableGrid::moveDown()
{
    const QModelIndex below = currentIndex().sibling(currentIndex().row() + 1, currentIndex().column());
    if (below.isValid())
        setCurrentIndex(below);
}

void TableGrid::retry(const QModelIndex& index, const QString& text)
{
    setFocus();
    setCurrentIndex(index);
    edit(index);
    // The closed editor may still exist; the new one is the last.
    if (const auto boxes = viewport()->findChildren<QLineEdit*>(); !boxes.isEmpty()) {
        boxes.last()->setText(text);
        boxes.last()->setModified(true);
        boxes.last()->selectAll();
    }
}

QModelIndex TableGrid::firstChosen() const
{
    QModelIndex first = currentIndex();
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        if (!first.isValid() || range.top() < first.row() || range.left() < first.column())
            first = m_model.index(std::min(range.top(), first.row()), std::min(range.left(), first.column()));
    }
    return first;
}

std::vector<int> TableGrid::chosenRows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::ranges::sort(rows);
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

std::vector<int> TableGrid::rowsFromChoice() const
{
    std::vector<int> rows;
    for (int row = firstChosen().row(); row >= 0 && row < m_model.rowCount(); ++row)
        rows.push_back(row);
    return rows;
}

std::vector<int> TableGrid::columnsFromChoice() const
{
    std::vector<int> columns;
    for (int column = firstChosen().column(); column >= 0 && column < m_model.columnCount(); ++column) {
        if (!isColumnHidden(column))
            columns.push_back(column);
    }
    return columns;
}

/// The rectangle around the chosen cells.
void TableGrid::copy() const
{
    const std::vector<int> rows = chosenRows();
    int last = 0;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        last = std::max(last, range.right());
    QVector<QStringList> cells;
    for (const int row : rows) {
        QStringList line;
        for (const int column : columnsFromChoice()) {
            if (column <= last)
                line += m_model.index(row, column).data().toString();
        }
        cells += line;
    }
    if (!cells.isEmpty())
        QGuiApplication::clipboard()->setText(textOfCells(cells));
}

/// Every cell becomes what the current one was not.
bool TableGrid::toggleChosen()
{
    const QModelIndex current = currentIndex();
    if (!current.flags().testFlag(Qt::ItemIsEditable) ||
        m_model.column(current.column()).kind() != ControlKind::Check)
        return false;
    const CellInput input =
        cellInput(m_model.column(current.column()), current.data().toString().isEmpty() ? u"Yes"_s : u"No"_s);
    std::vector<PendingEdit> edits;
    for (const int row : chosenRows()) {
        if (input.value)
            edits.push_back(m_model.editOf(row, current.column(), *input.value));
    }
    m_model.changeEdits([&](PendingEdits& pending) { pending.add(std::move(edits)); });
    return true;
}

/// What the base class does not edit, it looks for in the column; there is a filter for that.
bool TableGrid::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    const bool isTyped = trigger == EditKeyPressed || (trigger == AnyKeyPressed && isInput(event));
    if (!isTyped || !index.isValid() || index.flags().testFlag(Qt::ItemIsEditable))
        return QTableView::edit(index, trigger, event);
    Q_EMIT refused(m_model.column(index.column()).whyLocked());
    return true;
}

void TableGrid::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy)) {
        copy();
    } else if (event->matches(QKeySequence::Paste)) {
        Q_EMIT pasteWanted();
    } else if (event->key() != Qt::Key_Space || state() == EditingState || !toggleChosen()) {
        QTableView::keyPressEvent(event);
    }
}

} // namespace norvane::screens
