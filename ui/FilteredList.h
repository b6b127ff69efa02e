// A list that a box above it filters while the user types.
#pragma once

#include <QLineEdit>

class QAbstractItemModel;
class QAbstractItemView;
class QTableView;

namespace norvane::ui
{

/// A box for any part of a number or text. QLineEdit::textChanged reports the filter text, returnPressed that
/// the current row is chosen.
class FilterBox : public QLineEdit
{
    Q_OBJECT

public:
    FilterBox(const QString& name, QWidget* parent);
    /// The arrow and page keys walk the rows of @p list while the keyboard is in the box.
    void setList(QAbstractItemView* list) { m_list = list; }

Q_SIGNALS:
    /// The keyboard has come into the box: what it filters may have changed meanwhile.
    void entered();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QAbstractItemView* m_list = nullptr;
};

/// A plain list of @p model's rows: one row chosen at a time, the last column takes the room that is left.
/// Screen readers call it @p spoken. The caller places it.
[[nodiscard]] QTableView* makeListTable(const QString& name, const QString& spoken, QAbstractItemModel* model,
                                        QWidget* parent);

/// Makes the first column of @p list as wide as @p longest needs in bold.
void fitFirstColumn(QTableView& list, const QString& longest);

} // namespace norvane::ui
