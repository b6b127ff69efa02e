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

constexpr std::size_t rowsOfBlock = 64;
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
    : m_database(std::move(database)), m_source(std::move(source)),
      m_allColumns(static_cast<std::size_t>(m_source.columns.size()))
{
    std::iota(m_allColumns.begin(), m_allColumns.end(), 0);
    reload();
}

/// The fields of a row after its row id: @p chosen columns, then the key.
std::string TableRows::select(const std::vector<int>& chosen) const
{
    std::string sql = "SELECT rowid";
    for (const int column : chosen)
        sql += ", " + store::quotedName(columns().at(column).field.name);
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
        if (choice.keys)
            values.push_back(keysAsJson(choice.keys()));
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
    RowTexts texts(columns());
    store::BoundQuery rows(
        *m_database, texts.select(m_source.table) + " WHERE rowid BETWEEN ? AND ? ORDER BY rowid",
        {store::Value::whole(m_ids[first]), store::Value::whole(m_ids[end - 1])}, m_source.table);
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

/// The rows of a block are sought one by one; more rows are found sooner by a walk over all.
std::vector<TableRows::Values> TableRows::valuesOf(const std::vector<int>& rows,
                                                   const std::vector<int>& columns) const
{
    std::vector<std::pair<qint64, std::size_t>> places; // by row id
    places.reserve(rows.size());
    for (const int row : rows)
        places.emplace_back(rowId(row), places.size());
    std::ranges::sort(places);
    std::vector<store::Value> ids;
    for (std::size_t place = 0; place < rows.size() && rows.size() <= rowsOfBlock; ++place)
        ids.push_back(store::Value::whole(places[place].first));
    const std::string sought = ids.empty() ? "" : " WHERE rowid IN (" + placeholders(ids.size()) + ")";
    store::BoundQuery query(*m_database, select(columns) + sought + " ORDER BY rowid", ids, m_source.table);
    std::vector<Values> all(rows.size(), Values(columns.size() + 1));
    auto place = places.cbegin();
    while (place != places.cend() && query.next()) {
        const auto id = std::get<std::int64_t>(query.value(0).data());
        place = std::find_if(place, places.cend(), [id](const auto& each) { return each.first >= id; });
        for (std::size_t field = 0; place != places.cend() && place->first == id && field <= columns.size();
             ++field)
            all[place->second][field] = query.value(static_cast<int>(field) + 1);
    }
    return all;
}

void TableRows::readBlock(std::size_t block)
{
    std::vector<int> rows(std::min(rowsOfBlock, m_shown.size() - block * rowsOfBlock));
    std::iota(rows.begin(), rows.end(), static_cast<int>(block * rowsOfBlock));
    m_blocks[block] = valuesOf(rows, m_allColumns);
}

const store::Value& TableRows::read(int row, std::size_t field)
{
    const std::size_t block = static_cast<std::size_t>(row) / rowsOfBlock;
    if (!m_blocks.contains(block)) {
        if (m_blocks.size() >= mostBlocks)
            m_blocks.clear();
        readBlock(block);
    }
    return m_blocks.at(block).at(static_cast<std::size_t>(row) % rowsOfBlock).at(field);
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
