// Stores one field of many records.
#pragma once

#include "store/engine/Definitions.h"
#include "store/engine/Value.h"

#include <memory>
#include <vector>

namespace norvane::store
{

class Database;
class RowWriter;

/// Changes records that are known by their row ids, without reading them. Values are converted and checked as
/// by Recordset. The database must outlive it.
class FieldWriter
{
public:
    /// @throws RuntimeFailure with Failure::UnknownName for an unknown table.
    FieldWriter(Database& database, const QString& table, FieldDefinition field);
    FieldWriter(FieldWriter&& other) noexcept;
    ~FieldWriter();

    /// Replaces what the record holds now, @p before, by @p after. Writes nothing if they are alike.
    /// @throws RuntimeFailure with Failure::Conversion, Failure::TextTooLong, Failure::RequiredFieldIsNull,
    /// Failure::DuplicateKey, and Failure::RecordDeleted if the row is gone.
    void store(std::int64_t rowId, const Value& before, const Value& after);

private:
    QString m_table;
    FieldDefinition m_field;
    std::unique_ptr<RowWriter> m_writer;
    std::vector<Value> m_before; ///< one value each, as the writer takes them
    std::vector<Value> m_after;
};

} // namespace norvane::store
