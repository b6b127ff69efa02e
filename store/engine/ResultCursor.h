// The rows of a query, known by their position from 0.
#pragma once

#include "store/engine/Connection.h"
#include "store/engine/Cursor.h"
#include "store/engine/PreparedStatement.h"

#include <memory>
#include <optional>

namespace norvane::store
{

/// The set of rows is fixed when the query is run; rows added later are not among them.
class ResultCursor : public Cursor
{
public:
    /// @return false if there is no such row (any more).
    bool moveTo(qint64 position);

    bool first() override;
    bool last() override;
    bool next() override;
    bool previous() override;
    [[nodiscard]] const StoredRow& row() const override { return *m_row; }
    bool reread() override { return moveTo(m_position); }

protected:
    [[nodiscard]] virtual qint64 positions() const = 0;
    /// The row at a position, nullptr if it was deleted.
    [[nodiscard]] virtual const StoredRow* load(qint64 position) = 0;
    [[nodiscard]] qint64 position() const { return m_position; }

private:
    bool moveFrom(qint64 position, int step);

    qint64 m_position = -1;
    const StoredRow* m_row = nullptr;
};

/// The rows of a query that joins, counts or computes: kept as they were read.
class RowsInMemory : public ResultCursor
{
public:
    RowsInMemory(PreparedStatement& select, const std::vector<std::optional<FieldType>>& types);
    [[nodiscard]] qint64 count() override { return positions(); }
    void rowStored(std::vector<Value>&) override {}

protected:
    [[nodiscard]] qint64 positions() const override { return static_cast<qint64>(m_rows.size()); }
    [[nodiscard]] const StoredRow* load(qint64 position) override;

private:
    std::vector<StoredRow> m_rows;
};

/// The rows of a query over one table: kept by their row ids and read when they are moved to, so that they
/// can be changed and a long result takes little memory.
class RowsOfTable : public ResultCursor
{
public:
    /// @p select gives the row id in its last column; @p shape has the chosen fields of the table.
    RowsOfTable(Connection& connection, PreparedStatement& select, std::shared_ptr<const TableShape> shape);
    [[nodiscard]] qint64 count() override { return positions() - m_deleted; }
    void rowStored(std::vector<Value>& values) override { m_current.values.swap(values); }
    void rowDeleted() override;

protected:
    [[nodiscard]] qint64 positions() const override { return static_cast<qint64>(m_rowIds.size()); }
    [[nodiscard]] const StoredRow* load(qint64 position) override;

private:
    std::shared_ptr<const TableShape> m_shape;
    std::vector<int> m_fields; ///< all of them
    PreparedStatement m_byRowId;
    std::vector<std::int64_t> m_rowIds;
    StoredRow m_current;
    qint64 m_deleted = 0;
};

} // namespace norvane::store
