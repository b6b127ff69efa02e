// Walking the positions of a query's rows; see ResultCursor.h.
#include "store/engine/ResultCursor.h"

#include "store/engine/RowReading.h"

namespace norvane::store
{

bool ResultCursor::moveTo(qint64 position)
{
    if (position < 0 || position >= positions())
        return false;
    const StoredRow* row = load(position);
    if (!row)
        return false;
    m_position = position;
    m_row = row;
    return true;
}

/// Rows that were deleted meanwhile are skipped.
bool ResultCursor::moveFrom(qint64 position, int step)
{
    for (; position >= 0 && position < positions(); position += step) {
        if (moveTo(position))
            return true;
    }
    return false;
}

bool ResultCursor::first()
{
    return moveFrom(0, 1);
}

bool ResultCursor::last()
{
    return moveFrom(positions() - 1, -1);
}

bool ResultCursor::next()
{
    return moveFrom(m_position + 1, 1);
}

bool ResultCursor::previous()
{
    return moveFrom(m_position - 1, -1);
}

RowsInMemory::RowsInMemory(PreparedStatement& select, const std::vector<std::optional<FieldType>>& types)
{
    const StatementRun run(select);
    while (select.step()) {
        StoredRow row;
        row.values.resize(types.size());
        for (std::size_t i = 0; i < types.size(); ++i)
            select.read(static_cast<int>(i), types[i], row.values[i]);
        m_rows.push_back(std::move(row));
    }
}

const StoredRow* RowsInMemory::load(qint64 position)
{
    return &m_rows.at(static_cast<std::size_t>(position));
}

RowsOfTable::RowsOfTable(Connection& connection, PreparedStatement& select,
                         std::shared_ptr<const TableShape> shape)
    : m_shape(std::move(shape)), m_fields(allOrdinals(*m_shape)),
      m_byRowId(connection.handle(), selectFields(*m_shape, m_fields) + " WHERE _rowid_ = ?1",
                m_shape->name())
{
    const StatementRun run(select);
    const int rowIdColumn = select.columnCount() - 1;
    while (select.step())
        m_rowIds.push_back(select.whole(rowIdColumn));
}

const StoredRow* RowsOfTable::load(qint64 position)
{
    const StatementRun run(m_byRowId);
    m_byRowId.bind(1, m_rowIds.at(static_cast<std::size_t>(position)));
    if (!m_byRowId.step())
        return nullptr;
    readFields(m_byRowId, *m_shape, m_fields, m_current);
    return &m_current;
}

void RowsOfTable::rowDeleted()
{
    ++m_deleted;
}

} // namespace norvane::store
