// See TableRows.h.
#include "screens/table/TableRows.h"

#include "screens/table/RowTexts.h"
#include "store/engine/BoundQuery.h"
#include "store/engine/QuotedName.h"

#include <algorithm>
#include <numeric>

namespace norvane::screens
{
namespace
{

constexpr int rowsOfBlock = 64;
/// Some screens full of rows.
constexpr std::size_t mostBlocks = 32;
/// So many are read within a moment that nobody notices.
constexpr std::size_t textsAtOnce = 2000;

/// "?" for each of @p count values.
std::string placeholders(std::size_t count)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text += i == 0 ? "?" : ",?";
    return text;
}

/// Prices are stored as texts and ordered as numbers.
std::string orderOf(const TableColumn& column)
{
    std::string field = store::quotedName(column.field.name);
    if (column.field.type != store::FieldType::Text || column.isKey)
        return field;
    return column.isNumber() ? "CAST(" + field + " AS REAL)" : field + " COLLATE NOCASE";
}

} // namespace

TableRows::TableRows(std::shared_ptr<store::Database> database, TableSource source)
    : m_database(std::move(database)), m_source(std::move(source))
{
    reload();
}

/// The fields of a row after its row id: the columns, then the key.
std::string TableRows::select() const
{
    std::string sql = "SELECT rowid";
    for (const TableColumn& column : columns())
        sql += ", " + store::quotedName(column.field.name);
    return sql + ", " + store::quotedName(m_source.keyField) + " FROM " + store::quotedName(m_source.table);
}

void TableRows::reload()
{
    m_version = version();
    m_ids.clear();
    m_texts.clear();
    const std::string table = store::quotedName(m_source.table);
    store::BoundQuery ids(*m_database, "SELECT rowid FROM " + table + " ORDER BY rowid", {}, m_source.table);
    while (ids.next())
        m_ids.push_back(std::get<std::int64_t>(ids.value(0).data()));
    readOrder();
    readChosen();
    show();
}

/// Changes whenever another connection stores something.
store::Value TableRows::version() const
{
    store::BoundQuery query(*m_database, "PRAGMA data_version", {}, m_source.table);
    return query.next() ? query.value(0) : store::Value();
}

bool TableRows::isOutdated() const
{
    return version() != m_version;
}

int TableRows::ordinalOf(qint64 rowId) const
{
    const auto found = std::ranges::lower_bound(m_ids, rowId);
    return found == m_ids.end() || *found != rowId ? -1 : static_cast<int>(found - m_ids.begin());
}

std::string TableRows::orderSql() const
{
    const std::string key = store::quotedName(m_source.keyField);
    const std::string direction = m_sortOrder == Qt::DescendingOrder ? " DESC" : "";
    const std::string from = "SELECT rowid FROM " + store::quotedName(m_source.table) + " ORDER BY ";
    return m_sortColumn < 0 ? from + key + direction
                            : from + orderOf(columns().at(m_sortColumn)) + direction + ", " + key;
}

void TableRows::readOrder()
{
    m_order.clear();
    store::BoundQuery rows(*m_database, orderSql(), {}, m_source.table);
    while (rows.next()) {
        if (const int ordinal = ordinalOf(std::get<std::int64_t>(rows.value(0).data())); ordinal >= 0)
            m_order.push_back(ordinal);
    }
}

void TableRows::readChosen()
{
    m_chosen.assign(m_ids.size(), m_choices.empty());
    if (m_choices.empty())
        return;
    std::string sql = "SELECT rowid FROM " + store::quotedName(m_source.table) + " WHERE 1";
    std::vector<store::Value> values;
    for (const TableChoice& choice : m_choices) {
        sql += " AND (" + choice.sql + ")";
        values.insert(values.end(), choice.values.begin(), choice.values.end());
    }
    store::BoundQuery rows(*m_database, sql, values, m_source.table);
    while (rows.next()) {
        if (const int ordinal = ordinalOf(std::get<std::int64_t>(rows.value(0).data())); ordinal >= 0)
            m_chosen[static_cast<std::size_t>(ordinal)] = true;
    }
}

void TableRows::show()
{
    while (!m_filter.isEmpty() && prepareTexts()) {
    }
    const auto having = m_filter.isEmpty() ? std::vector<bool>(m_ids.size(), true) : m_texts.having(m_filter);
    m_blocks.clear();
    m_shown.clear();
    for (const int ordinal : m_order) {
        const auto place = static_cast<std::size_t>(ordinal);
        if (m_chosen[place] && having[place])
            m_shown.push_back(ordinal);
    }
}

void TableRows::sortBy(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    readOrder();
    show();
}

void TableRows::setFilter(const QString& text)
{
    m_filter = text.trimmed();
    show();
}

void TableRows::setChoices(std::vector<TableChoice> choices)
{
    m_choices = std::move(choices);
    readChosen();
    show();
}

bool TableRows::prepareTexts()
{
    const auto first = static_cast<std::size_t>(m_texts.size());
    if (first == m_ids.size())
        return false;
    const std::size_t end = std::min(first + textsAtOnce, m_ids.size());
    store::BoundQuery rows(*m_database, select() + " WHERE rowid BETWEEN ? AND ? ORDER BY rowid",
                           {store::Value::whole(m_ids[first]), store::Value::whole(m_ids[end - 1])},
                           m_source.table);
    RowTexts texts(columns());
    bool isLeft = rows.next();
    for (std::size_t ordinal = first; ordinal < end; ++ordinal) {
        while (isLeft && std::get<std::int64_t>(rows.value(0).data()) < m_ids[ordinal])
            isLeft = rows.next();
        const bool isThere = isLeft && std::get<std::int64_t>(rows.value(0).data()) == m_ids[ordinal];
        m_texts.add(isThere ? texts.of(rows) : std::string());
    }
    return true;
}

qint64 TableRows::rowId(int row) const
{
    return m_ids.at(static_cast<std::size_t>(m_shown.at(static_cast<std::size_t>(row))));
}

int TableRows::rowOf(qint64 rowId) const
{
    const auto found = std::ranges::find(m_shown, ordinalOf(rowId));
    return found == m_shown.end() ? -1 : static_cast<int>(found - m_shown.begin());
}

int TableRows::rowOfKey(const QString& key) const
{
    const std::string sql = "SELECT rowid FROM " + store::quotedName(m_source.table) + " WHERE " +
                            store::quotedName(m_source.keyField) + " = ?";
    store::BoundQuery row(*m_database, sql, {store::Value::text(key)}, m_source.table);
    return row.next() ? rowOf(std::get<std::int64_t>(row.value(0).data())) : -1;
}

void TableRows::readBlock(int block)
{
    const int first = block * rowsOfBlock;
    const int count = std::min(rowsOfBlock, size() - first);
    std::vector<store::Value> ids;
    std::unordered_map<qint64, std::size_t> places;
    for (int row = 0; row < count; ++row) {
        places.emplace(rowId(first + row), ids.size());
        ids.push_back(store::Value::whole(rowId(first + row)));
    }
    const auto fields = static_cast<std::size_t>(columns().size()) + 1;
    auto& rows = m_blocks[block];
    rows.assign(static_cast<std::size_t>(count), Values(fields));
    store::BoundQuery query(*m_database, select() + " WHERE rowid IN (" + placeholders(ids.size()) + ")", ids,
                            m_source.table);
    while (query.next()) {
        Values& values = rows[places.at(std::get<std::int64_t>(query.value(0).data()))];
        for (std::size_t field = 0; field < fields; ++field)
            values[field] = query.value(static_cast<int>(field) + 1);
    }
}

const store::Value& TableRows::read(int row, std::size_t place)
{
    const int block = row / rowsOfBlock;
    if (!m_blocks.contains(block)) {
        if (m_blocks.size() >= mostBlocks)
            m_blocks.clear();
        readBlock(block);
    }
    return m_blocks.at(block).at(static_cast<std::size_t>(row % rowsOfBlock)).at(place);
}

const store::Value& TableRows::value(int row, int column)
{
    return read(row, static_cast<std::size_t>(column));
}

const store::Value& TableRows::key(int row)
{
    return read(row, static_cast<std::size_t>(columns().size()));
}

} // namespace norvane::screens
