// How cells of a table are edited.
#pragma once

#include <QStyledItemDelegate>

namespace norvane::screens
{

/// Edits texts and numbers in a text box and values of lists in a list. What is typed is checked when the
/// cell is left.
class TableCellDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

Q_SIGNALS:
    /// Enter ended an edit.
    void entered();

protected:
    bool eventFilter(QObject* editor, QEvent* event) override;
};

} // namespace norvane::screens
