// The rows of a table of records: which are shown, in which order, and what they hold.
#pragma once

#include "screens/table/FoldedTexts.h"
#include "screens/table/TableChoices.h"
#include "screens/table/TableColumns.h"
#include "store/engine/Database.h"
#include "store/engine/Value.h"

#include <memory>
#include <unordered_map>
#include <vector>

namespace norvane::screens
{

/// Knows all rows by their row ids alone. What a row holds is read with some of its neighbours when it is
/// asked for, so that a table of any length opens at once. The text that a filter looks for is searched in
/// texts of all rows; they are prepared while the user does nothing, or when a filter needs them.
class TableRows
{
public:
    TableRows(std::shared_ptr<store::Database> database, TableSource source);

    [[nodiscard]] const TableSource& source() const { return m_source; }
    [[nodiscard]] const TableColumns& columns() const { return m_source.columns; }

    /// Reads the rows again from the file; order and filters are kept.
    void reload();
    /// Whether another connection has stored anything since then.
    [[nodiscard]] bool isOutdated() const;
    /// Orders by the column, or by the number of the records with -1.
    void sortBy(int column, Qt::SortOrder order);
    /// Shows only rows with @p text in what they show in any column.
    void setFilter(const QString& text);
    /// Shows only rows that meet all of them.
    void setChoices(std::vector<TableChoice> choices);
    /// Prepares the texts of some more rows. @return false if all are prepared.
    bool prepareTexts();

    [[nodiscard]] int total() const { return static_cast<int>(m_ids.size()); }
    [[nodiscard]] int size() const { return static_cast<int>(m_shown.size()); }
    [[nodiscard]] qint64 rowId(int row) const;
    /// The row that shows this record, -1 if it is filtered out or deleted.
    [[nodiscard]] int rowOf(qint64 rowId) const;
    /// The row of the record with this number, -1 as above.
    [[nodiscard]] int rowOfKey(const QString& key) const;
    /// What a row holds in a column, as it is stored; null for a record that was deleted meanwhile.
    [[nodiscard]] const store::Value& value(int row, int column);
    [[nodiscard]] const store::Value& key(int row);
    using Values = std::vector<store::Value>; ///< of some columns, then the key
    /// The same of many rows: what each of @p rows holds in @p columns, then its key.
    [[nodiscard]] std::vector<Values> valuesOf(const std::vector<int>& rows,
                                               const std::vector<int>& columns) const;

private:
    [[nodiscard]] std::string select(const std::vector<int>& columns) const;
    [[nodiscard]] std::string orderSql() const;
    [[nodiscard]] int ordinalOf(qint64 rowId) const;
    [[nodiscard]] const store::Value& read(int row, std::size_t field);
    void readBlock(std::size_t block);
    [[nodiscard]] store::Value version() const;
    void readOrder();
    void readChosen();
    void show();

    std::shared_ptr<store::Database> m_database;
    TableSource m_source;
    store::Value m_version;     ///< of the file, when the rows were read
    std::vector<qint64> m_ids;  ///< ascending; an ordinal is a place in it
    std::vector<int> m_order;   ///< all ordinals, as sorted
    std::vector<int> m_shown;   ///< those that pass the filters
    std::vector<bool> m_chosen; ///< by ordinal: whether it meets the choices
    FoldedTexts m_texts;        ///< by ordinal
    std::unordered_map<std::size_t, std::vector<Values>> m_blocks; ///< rows last read, by their block
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    QString m_filter;
    std::vector<TableChoice> m_choices;
    std::vector<int> m_allColumns;
};

} // namespace norvane::screens
