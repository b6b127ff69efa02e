// See TableModel.h.
#include "screens/table/TableModel.h"

#include "platform/Excerpt.h"
#include "screens/table/CellInput.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{

TableModel::TableModel(std::shared_ptr<store::Database> database, TableSource source, QObject* parent)
    : QAbstractTableModel(parent), m_rows(std::move(database), std::move(source))
{
    connect(&m_idle, &QTimer::timeout, this, [this] {
        if (!m_rows.prepareTexts())
            m_idle.stop();
    });
    m_idle.start();
}

template <typename Act>
void TableModel::resetBy(Act act)
{
    beginResetModel();
    act();
    m_marked = m_markedKey.isEmpty() ? -1 : m_rows.rowOfKey(m_markedKey);
    endResetModel();
}

void TableModel::reload()
{
    resetBy([this] { m_rows.reload(); });
    m_idle.start();
}

void TableModel::setFilter(const QString& text)
{
    resetBy([&] { m_rows.setFilter(text); });
}

void TableModel::setChoices(std::vector<TableChoice> choices)
{
    resetBy([&] { m_rows.setChoices(std::move(choices)); });
}

void TableModel::changeEdits(const std::function<void(PendingEdits&)>& change)
{
    change(m_edits);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    Q_EMIT editsChanged();
}

const PendingEdit* TableModel::editAt(const QModelIndex& index) const
{
    return m_edits.isEmpty() ? nullptr : m_edits.find(m_rows.rowId(index.row()), index.column());
}

const store::Value& TableModel::value(int row, int column) const
{
    const PendingEdit* const edit = editAt(index(row, column));
    return edit ? edit->after : m_rows.value(row, column);
}

const store::Value& TableModel::value(int row, int column, const store::Value& stored) const
{
    const PendingEdit* const edit = editAt(index(row, column));
    return edit ? edit->after : stored;
}

PendingEdit TableModel::editOf(int row, int column, const store::Value& value) const
{
    const store::Value before = m_rows.value(row, column);
    return editOf(row, column, m_rows.key(row), before, value);
}

PendingEdit TableModel::editOf(int row, int column, const store::Value& key, store::Value before,
                               const store::Value& value) const
{
    const bool isSame = this->column(column).text(before) == this->column(column).text(value);
    store::Value after = isSame ? before : value;
    return {m_rows.rowId(row), column, key.toUtf8(), std::move(before), std::move(after)};
}

void TableModel::sort(int column, Qt::SortOrder order)
{
    resetBy([&] { m_rows.sortBy(column, order); });
}

void TableModel::mark(const QString& key)
{
    const int before = m_marked;
    m_markedKey = key;
    m_marked = key.isEmpty() ? -1 : m_rows.rowOfKey(key);
    for (const int row : {before, m_marked}) {
        if (row >= 0)
            Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1));
    }
}

int TableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int TableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.columns().size());
}

QVariant TableModel::font(const QModelIndex& index) const
{
    const bool isEdited = editAt(index) != nullptr;
    if (index.row() != m_marked && !isEdited)
        return {};
    QFont font;
    font.setBold(index.row() == m_marked);
    font.setItalic(isEdited);
    return font;
}

/// "0 Not used" is pale; "Ingredient" is not, which is stored as 0 too.
QVariant TableModel::pen(const TableColumn& column, const store::Value& value)
{
    if (column.kind() != ControlKind::Combo || !column.text(value).startsWith(u'0'))
        return {};
    return QGuiApplication::palette().color(QPalette::PlaceholderText);
}

QVariant TableModel::data(const QModelIndex& index, int role) const
{
    const TableColumn& column = this->column(index.column());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return column.text(value(index.row(), index.column()));
    case Qt::ToolTipRole:
        return editAt(index)
                   ? QVariant(u"Not stored yet. Before: %1"_s.arg(column.text(editAt(index)->before)))
                   : QVariant();
    case Qt::TextAlignmentRole:
        return static_cast<int>((column.isOfDigits() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::FontRole:
        return font(index);
    case Qt::ForegroundRole:
        return pen(column, value(index.row(), index.column()));
    default:
        return {};
    }
}

Qt::ItemFlags TableModel::flags(const QModelIndex& index) const
{
    const auto flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return column(index.column()).isEditable() ? flags | Qt::ItemIsEditable : flags;
}

bool TableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const QString text = value.toString();
    if (role != Qt::EditRole || text == index.data(Qt::EditRole).toString())
        return false;
    CellInput input = cellInput(column(index.column()), text);
    if (!input.value) {
        Q_EMIT refused(index, text,
                       u"%1: \"%2\" %3"_s.arg(column(index.column()).label, excerpt(text), input.refusal));
        return false;
    }
    changeEdits([&](PendingEdits& edits) { edits.add({editOf(index.row(), index.column(), *input.value)}); });
    return true;
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    return column(section).label;
}

} // namespace norvane::screens
