// The places that a recordset can stand on, one after the other.
#pragma once

#include "store/Value.h"

#include <QtGlobal>

#include <cstdint>
#include <vector>

namespace norvane::store
{

/// A record as it was read, with the number by which the table knows its row.
struct Row {
    std::vector<Value> values;
    std::int64_t rowId = 0;
};

/// Moves from record to record. Every move tells whether there was a record; where there was none, the cursor
/// keeps the place it had.
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
    [[nodiscard]] virtual const Row& row() const = 0;
    /// Reads the record anew where it may have been changed. @return false when it is gone.
    virtual bool reread() = 0;
    /// The record last moved to was stored with these values by its own recordset.
    virtual void rowStored(const std::vector<Value>& values) = 0;
    /// It was deleted by its own recordset.
    virtual void rowDeleted() {}
};

} // namespace norvane::store
