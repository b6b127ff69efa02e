// See FieldWriter.h.
#include "store/engine/FieldWriter.h"

#include "store/engine/Connection.h"
#include "store/engine/FieldConversion.h"
#include "store/engine/RowWriter.h"

namespace norvane::store
{

FieldWriter::FieldWriter(Database& database, const QString& table, FieldDefinition field)
    : m_table(connectionOf(database).shape(table)->name()), m_field(std::move(field)),
      m_writer(std::make_unique<RowWriter>(
          connectionOf(database),
          std::make_shared<const TableShape>(TableDefinition{m_table, {m_field}, {}}))),
      m_before(1), m_after(1)
{
}

FieldWriter::FieldWriter(FieldWriter&& other) noexcept = default;
FieldWriter::~FieldWriter() = default;

void FieldWriter::store(std::int64_t rowId, const Value& before, const Value& after)
{
    m_before.front() = before;
    m_after.front() = after;
    convertToField(m_after.front(), m_field, m_table);
    m_writer->update(rowId, m_before, m_after);
}

} // namespace norvane::store
