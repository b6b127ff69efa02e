// See TableModel.h.
#include "screens/table/TableModel.h"

#include <QFont>
#include <QGuiApplication>
#include <QPalette>

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
    if (index.row() != m_marked)
        return {};
    QFont bold;
    bold.setBold(true);
    return bold;
}

/// "0 Not used" is pale.
QVariant TableModel::pen(const TableColumn& column, const store::Value& value)
{
    if (column.kind() != ControlKind::Combo || value.toNumber() != 0)
        return {};
    return QGuiApplication::palette().color(QPalette::PlaceholderText);
}

QVariant TableModel::data(const QModelIndex& index, int role) const
{
    const TableColumn& column = this->column(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return column.text(m_rows.value(index.row(), index.column()));
    case Qt::TextAlignmentRole:
        return static_cast<int>((column.isOfDigits() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::FontRole:
        return font(index);
    case Qt::ForegroundRole:
        return pen(column, m_rows.value(index.row(), index.column()));
    default:
        return {};
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    return column(section).label;
}

} // namespace norvane::screens
