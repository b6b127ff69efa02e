// Rows of a grid; see GridModel.h.
#include "screens/GridModel.h"

#include "platform/Excerpt.h"
#include "platform/Numbers.h"
#include "platform/RuntimeFailure.h"
#include "register/PluNumber.h"
#include "screens/RegisterRules.h"
#include "screens/SaveNotices.h"
#include "store/engine/ShortWait.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

constexpr int rowsAtATime = 200;

/// Only the zeros and the point of a format such as "#,##0.00" count.
QString zerosOf(const QString& format)
{
    QString zeros;
    for (const QChar character : format) {
        if (character == u'0' || character == u'.')
            zeros += character;
    }
    return zeros;
}

/// A table's name means all its records in the order of its first index.
QString queryOf(const store::Database& database, const QString& sql)
{
    if (!database.hasTable(sql))
        return sql;
    const store::TableDefinition table = database.table(sql);
    const QString query = u"select * from [%1]"_s.arg(table.name);
    return table.indexes.isEmpty() ? query : query + u" order by [%1]"_s.arg(table.indexes[0].field);
}

/// Whether @p text is digits with at most @p decimals after a point; empty text counts.
bool isPlainNumber(const QString& text, int decimals)
{
    static const QRegularExpression plain(u"^[0-9]*(?:\\.([0-9]*))?$"_s);
    const auto match = plain.match(text);
    return match.hasMatch() && match.capturedLength(1) <= decimals;
}

/// A number with more decimals than the format is shown whole: what is seen is what is stored.
QString formatted(const store::Value& value, const QString& format)
{
    QString text = value.toText();
    const QString zeros = zerosOf(format);
    const auto number = zeros.isEmpty() ? std::nullopt : Decimal::tryParse(text.toStdString());
    if (!number)
        return text;
    const QString shown = formatNumber(text, zeros);
    return Decimal::leading(shown.toStdString()) == *number ? shown : text;
}

} // namespace

GridModel::GridModel(std::shared_ptr<store::Database> database, const QString& sql,
                     QVector<GridColumn> columns, QObject* parent)
    : QAbstractTableModel(parent), m_database(std::move(database)), m_columns(std::move(columns))
{
    if (sql.isEmpty())
        return;
    m_query = queryOf(*m_database, sql);
    m_records.emplace(m_database->openQuery(m_query));
    m_total = static_cast<int>(m_records->recordCount());
    if (m_columns.size() > m_records->fieldCount()) {
        throw RuntimeFailure(Failure::InvalidArgument,
                             u"The grid has %1 headings and its query %2 columns"_s.arg(m_columns.size())
                                 .arg(m_records->fieldCount()));
    }
    fetchMore({});
}

int GridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int GridModel::columnCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    return m_records ? m_records->fieldCount() : static_cast<int>(m_columns.size());
}

bool GridModel::canFetchMore(const QModelIndex& parent) const
{
    return !parent.isValid() && rowCount() < m_total;
}

void GridModel::fetchMore(const QModelIndex& /*parent*/)
{
    const int first = rowCount();
    const int last = qMin(m_total, first + rowsAtATime) - 1;
    if (last < first)
        return;
    beginInsertRows({}, first, last);
    for (int row = first; row <= last; ++row)
        m_rows.push_back(readRow(row));
    endInsertRows();
}

/// A row that another screen has deleted remains as an empty line.
GridModel::Row GridModel::readRow(int row)
{
    Row values(static_cast<std::size_t>(m_records->fieldCount()));
    if (!m_records->moveTo(row))
        return values;
    for (int field = 0; field < m_records->fieldCount(); ++field)
        values[static_cast<std::size_t>(field)] = m_records->value(field);
    return values;
}

void GridModel::shrinkTo(int rows)
{
    if (rows >= rowCount())
        return;
    beginRemoveRows({}, rows, rowCount() - 1);
    m_rows.resize(static_cast<std::size_t>(rows));
    endRemoveRows();
}

void GridModel::readAgain(int rows)
{
    m_records = m_database->openQuery(m_query);
    m_total = static_cast<int>(m_records->recordCount());
    m_texts.clear();
    // In whole batches, as they were read: otherwise the scroll bar would indicate a short table.
    shrinkTo(qMin((rows / rowsAtATime + 1) * rowsAtATime, m_total));
    for (int row = 0; row < rowCount(); ++row)
        m_rows[static_cast<std::size_t>(row)] = readRow(row);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int GridModel::rowOf(const QString& key, int likely)
{
    const auto hasKey = [&](int row) {
        return m_records->moveTo(row) && m_records->value(0).toText() == key;
    };
    if (hasKey(likely))
        return likely;
    int row = 0;
    while (row < m_total && !hasKey(row))
        ++row;
    return row < m_total ? row : qMin(likely, m_total - 1);
}

int GridModel::reread(int rows, int current)
{
    if (!m_records)
        return current;
    const QString key = current < 0 ? QString() : cell(index(current, 0)).toText();
    const store::ShortWait wait(*m_database);
    try {
        readAgain(rows);
        if (current < 0)
            return current;
        const int row = rowOf(key, current);
        fetchTo(row);
        return row;
    } catch (const RuntimeFailure&) {
        return qMin(current, rowCount() - 1); // an edit of a row reports it
    }
}

void GridModel::fetchTo(int row)
{
    while (rowCount() <= row)
        fetchMore({});
}

const store::Value& GridModel::cell(const QModelIndex& index) const
{
    return m_rows[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())];
}

QVariant GridModel::data(const QModelIndex& index, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return formatted(cell(index), column(index.column()).numberFormat);
    case Qt::EditRole:
        return cell(index).toText();
    case Qt::TextAlignmentRole: {
        const bool isNumeric = !cell(index).isText() || !column(index.column()).numberFormat.isEmpty();
        return static_cast<int>((isNumeric ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    default:
        return {};
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section < m_columns.size() ? m_columns[section].caption : m_records->field(section).name;
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const
{
    const auto flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    const bool isLocked = column(index.column()).locked || !m_records->isUpdatable();
    return isLocked ? flags : flags | Qt::ItemIsEditable;
}

/// A price must be one that registers take: no sign, no exponent, no more digits than the price boxes of the
/// screens. An emptied price is 0, as there.
store::Value GridModel::priceOf(int column, QString text) const
{
    text.replace(u',', u'.');
    const QString field = m_records->field(column).name;
    const int decimals = static_cast<int>(zerosOf(this->column(column).numberFormat).section(u'.', 1).size());
    if (!isPlainNumber(text, decimals)) {
        throw RuntimeFailure(
            Failure::Conversion,
            u"\"%1\" is not a number from 0 up with at most %2 decimals"_s.arg(excerpt(text)).arg(decimals));
    }
    const Decimal number = Decimal::leading(text.toStdString());
    if (isAboveLargest(number, field))
        throw RuntimeFailure(Failure::Overflow, u"%1 is more than a register holds"_s.arg(excerpt(text)));
    return store::Value::decimal(number);
}

store::Value GridModel::valueOf(int column, const QString& text) const
{
    if (!this->column(column).numberFormat.isEmpty())
        return priceOf(column, text);
    if (text.isEmpty() && m_records->field(column).type != store::FieldType::Text)
        return {};
    return store::Value::text(text);
}

void GridModel::readTexts()
{
    const int second = qMin(1, m_records->fieldCount() - 1);
    for (int row = 0; row < m_total; ++row) {
        if (m_records->moveTo(row)) {
            m_texts.add(m_records->value(0).toText(), m_records->value(second).toText());
        } else {
            m_texts.add({}, {});
        }
    }
}

int GridModel::findRow(const QString& part, int from)
{
    if (m_texts.size() < m_total)
        readTexts();
    const auto found = m_texts.containing(part);
    if (found.empty())
        return -1;
    const auto next = std::lower_bound(found.cbegin(), found.cend(), from);
    const int row = next == found.cend() ? found.front() : *next;
    fetchTo(row);
    return row;
}

void GridModel::storeCell(const QModelIndex& index, const QString& text)
{
    const store::ShortWait wait(*m_database);
    m_records->moveTo(index.row());
    try {
        m_records->edit();
        m_records->setValue(index.column(), valueOf(index.column(), text));
        m_records->update();
    } catch (const RuntimeFailure&) {
        m_records->cancelUpdate();
        throw;
    }
    m_rows[static_cast<std::size_t>(index.row())] = readRow(index.row());
}

QString GridModel::recordOf(const QModelIndex& index) const
{
    const QString key = shownKey(m_records->field(0).name, cell(index.siblingAtColumn(0)).toText());
    return recordName({}, headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), key);
}

bool GridModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || value.toString() == cell(index).toText())
        return false;
    try {
        m_recorder(recordOf(index), [&] { storeCell(index, value.toString()); });
    } catch (const RuntimeFailure& failure) {
        Q_EMIT refused(index, nothingStored(failure));
        return false;
    }
    Q_EMIT dataChanged(this->index(index.row(), 0), this->index(index.row(), columnCount() - 1));
    Q_EMIT stored(recordSaved(recordOf(index)));
    return true;
}

} // namespace norvane::screens
