// How a recordset walks from record to record.
#pragma once

#include "store/engine/Value.h"

#include <QtGlobal>

#include <cstdint>
#include <vector>

namespace norvane::store
{

/// A record as it was read, with the number by which the table knows its row.
struct StoredRow {
    std::vector<Value> values;
    std::int64_t rowId = 0;
};

/// Every move returns whether there was a record; if not, the cursor does not move.
class Cursor
{
public:
    virtual ~Cursor() = default;
    Cursor() = default;
    Cursor(const Cursor&) = delete;
    Cursor& operator=(const Cursor&) = delete;

    virtual bool first() = 0;
    virtual bool last() = 0;
    virtual bool next() = 0;
    virtual bool previous() = 0;
    [[nodiscard]] virtual qint64 count() = 0;
    /// The record last moved to.
    [[nodiscard]] virtual const StoredRow& row() const = 0;
    /// Reads the record again. @return false if it was deleted.
    virtual bool reread() = 0;
    /// This recordset stored the record with these values. Moves from @p values, whose content is then
    /// undefined.
    virtual void rowStored(std::vector<Value>& values) = 0;
    /// This recordset deleted the record.
    virtual void rowDeleted() {}
};

} // namespace norvane::store
