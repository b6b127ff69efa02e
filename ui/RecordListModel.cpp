// See RecordListModel.h.
#include "ui/RecordListModel.h"

#include "register/PluNumber.h"
#include "store/engine/Recordset.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace norvane::ui
{

RecordListModel::RecordListModel(std::shared_ptr<store::Database> database, RecordListSource source,
                                 QObject* parent)
    : QAbstractTableModel(parent), m_database(std::move(database)), m_source(std::move(source))
{
}

QString RecordListModel::shownNumber(const QString& number) const
{
    return shownKey(m_source.numberField, number);
}

void RecordListModel::readRecords()
{
    m_texts.clear();
    store::Recordset records = m_database->openTable(m_source.table);
    records.setIndex(m_source.index);
    const int number = records.fieldOrdinal(m_source.numberField);
    const int text = m_source.textField.isEmpty() ? number : records.fieldOrdinal(m_source.textField);
    records.readOnly({number, text});
    for (; !records.atEnd(); records.moveNext()) {
        m_texts.add(shownNumber(records.value(number).toText()),
                    text == number ? QString() : records.value(text).toText());
    }
}

void RecordListModel::reload()
{
    beginResetModel();
    readRecords();
    m_only.reset();
    chooseShown();
    m_marked = m_markedNumber.isEmpty() ? -1 : m_texts.find(m_markedNumber);
    endResetModel();
}

void RecordListModel::setFilter(const QString& part)
{
    beginResetModel();
    m_filter = part.trimmed();
    chooseShown();
    endResetModel();
}

void RecordListModel::showOnly(const std::optional<QStringList>& numbers)
{
    beginResetModel();
    m_only.reset();
    if (numbers)
        m_only = recordsOf(*numbers);
    chooseShown();
    endResetModel();
}

/// In one pass over all records, however many numbers there are.
std::vector<int> RecordListModel::recordsOf(const QStringList& numbers) const
{
    QHash<QString, std::size_t> places;
    for (const QString& number : numbers) {
        if (const QString shown = shownNumber(number); !places.contains(shown))
            places.insert(shown, static_cast<std::size_t>(places.size()));
    }
    std::vector<int> records(static_cast<std::size_t>(places.size()), -1);
    for (int record = 0; record < m_texts.size(); ++record) {
        if (const auto place = places.constFind(m_texts.number(record)); place != places.cend())
            records[*place] = record;
    }
    std::erase(records, -1);
    return records;
}

void RecordListModel::chooseShown()
{
    m_shown = m_texts.containing(m_filter);
    if (!m_only)
        return;
    const std::vector<int> withText = std::exchange(m_shown, *m_only);
    std::erase_if(m_shown, [&](int record) { return !std::ranges::binary_search(withText, record); });
}

void RecordListModel::mark(const QString& number)
{
    const int before = markedRow();
    m_markedNumber = shownNumber(number);
    m_marked = m_markedNumber.isEmpty() ? -1 : m_texts.find(m_markedNumber);
    for (const int row : {before, markedRow()}) {
        if (row >= 0)
            Q_EMIT dataChanged(index(row, 0), index(row, 1));
    }
}

int RecordListModel::markedRow() const
{
    const auto row = std::lower_bound(m_shown.cbegin(), m_shown.cend(), m_marked);
    return row == m_shown.cend() || *row != m_marked ? -1 : static_cast<int>(row - m_shown.cbegin());
}

QString RecordListModel::lastNumber() const
{
    return m_texts.size() == 0 ? QString() : m_texts.number(m_texts.size() - 1);
}

int RecordListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

int RecordListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant RecordListModel::data(const QModelIndex& index, int role) const
{
    const int record = m_shown.at(static_cast<std::size_t>(index.row()));
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == 0 ? m_texts.number(record) : m_texts.text(record);
    case Qt::TextAlignmentRole:
        return static_cast<int>((index.column() == 0 ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case MarkedRole:
        return record == m_marked;
    default:
        return {};
    }
}

} // namespace norvane::ui
