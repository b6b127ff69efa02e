// See TableCellDelegate.h.
#include "screens/table/TableCellDelegate.h"

#include "screens/table/TableModel.h"
#include "ui/TextBox.h"
#include "ui/ValueList.h"

#include <QKeyEvent>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

const TableColumn& columnOf(const QModelIndex& index)
{
    return static_cast<const TableModel*>(index.model())->column(index.column());
}

/// Value and text of each row; only the text is shown.
QVector<QStringList> listRows(const TableColumn& column)
{
    if (column.kind() == ControlKind::Check)
        return {{u"No"_s, u"No"_s}, {u"Yes"_s, u"Yes"_s}};
    QVector<QStringList> rows;
    for (const ListEntry& entry : column.entries)
        rows += {entry.value.toText(), entry.shown};
    return rows;
}

QWidget* makeListEditor(const TableColumn& column, QWidget* parent)
{
    auto* const list = new ui::ValueList(parent);
    list->setRows(listRows(column));
    list->setColumnWidths({0});
    return list;
}

/// Numbers are checked as a whole when the cell is left, with a reason.
QWidget* makeTextEditor(const TableColumn& column, QWidget* parent)
{
    auto* const box = new ui::TextBox(parent);
    box->setFrame(false);
    if (column.kind() == ControlKind::Text && column.control.maximum)
        box->setLimit(static_cast<int>(column.control.maximum->toWhole()));
    return box;
}

} // namespace

QWidget* TableCellDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                         const QModelIndex& index) const
{
    const TableColumn& column = columnOf(index);
    const bool isList = column.kind() == ControlKind::Combo || column.kind() == ControlKind::Check;
    QWidget* const editor = isList ? makeListEditor(column, parent) : makeTextEditor(column, parent);
    editor->setAccessibleName(column.label);
    return editor;
}

void TableCellDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const auto* const model = static_cast<const TableModel*>(index.model());
    if (auto* const list = qobject_cast<ui::ValueList*>(editor)) {
        const bool isCheck = columnOf(index).kind() == ControlKind::Check;
        const QString shown = index.data(Qt::EditRole).toString();
        list->setValue(isCheck ? (shown.isEmpty() ? u"No"_s : shown)
                               : model->value(index.row(), index.column()).toText());
    } else {
        static_cast<ui::TextBox*>(editor)->showText(index.data(Qt::EditRole).toString());
        static_cast<ui::TextBox*>(editor)->selectAll();
    }
}

void TableCellDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                     const QModelIndex& index) const
{
    if (const auto* const list = qobject_cast<ui::ValueList*>(editor)) {
        model->setData(index, list->value(), Qt::EditRole);
    } else if (static_cast<const ui::TextBox*>(editor)->isModified()) {
        model->setData(index, static_cast<const ui::TextBox*>(editor)->text(), Qt::EditRole);
    }
}

/// Enter ends the edit like a click elsewhere, and then leads down.
bool TableCellDelegate::eventFilter(QObject* editor, QEvent* event)
{
    const bool isKey = event->type() == QEvent::KeyPress;
    const int key = isKey ? static_cast<QKeyEvent*>(event)->key() : 0;
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return QStyledItemDelegate::eventFilter(editor, event);
    auto* const widget = static_cast<QWidget*>(editor);
    Q_EMIT commitData(widget);
    Q_EMIT closeEditor(widget, NoHint);
    Q_EMIT entered();
    return true;
}

} // namespace norvane::screens
