// Adds many rows to a sales table in one operation.
#pragma once

#include "store/engine/CommitOnExit.h"
#include "store/engine/Database.h"

#include <cstdint>
#include <memory>

namespace norvane::store
{

class TriggersAtRest;

/// During its lifetime, rows are added to @p table as fast as without totals of months: the triggers are
/// disabled, and at the end the totals of all months of the added rows, and the digests of their days, are
/// dropped together. Triggers would take a third of the time of an import. Nothing else may be changed
/// meanwhile.
class RowAppend
{
public:
    /// @p open is the transaction around it, which must outlive it. @throws RuntimeFailure with
    /// Failure::UnknownName for an unknown table, and what the database reports.
    RowAppend(Database& database, const CommitOnExit& open, const QString& table);
    /// If the totals cannot be dropped, the transaction is rolled back, and its commit reports it.
    ~RowAppend();
    RowAppend(const RowAppend&) = delete;
    RowAppend& operator=(const RowAppend&) = delete;

private:
    void dropKept();
    void dropBetween(const QString& table, const char* key, const QString& first, const QString& last);

    Connection& m_connection;
    QString m_table;
    std::int64_t m_lastRow = 0; ///< before the first that is added
    std::unique_ptr<TriggersAtRest> m_rest;
};

} // namespace norvane::store
