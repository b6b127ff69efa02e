// Adding many rows to a sales table at once.
#pragma once

#include "store/Database.h"

#include <cstdint>
#include <memory>

namespace norvane::store
{

class TriggersAtRest;

/// While it lives, rows are added to @p table as fast as without totals of months: the triggers rest, and at
/// the end the months of all rows that were added lose their totals, and the days their digests, in one go.
/// Triggers would take a third of the time of an import. Nothing else may be changed meanwhile.
class RowAppend
{
public:
    /// @p open is the transaction around it, which must outlive it. @throws RuntimeFailure 3265 for an
    /// unknown table, and what the database reports.
    RowAppend(Database& database, const Transaction& open, const QString& table);
    /// When the totals cannot be dropped, the transaction is rolled back, and its commit tells so.
    ~RowAppend();
    RowAppend(const RowAppend&) = delete;
    RowAppend& operator=(const RowAppend&) = delete;

private:
    void dropKept();
    void dropBetween(const QString& table, const char* key, const QString& first, const QString& last);

    Database::Private& m_database;
    QString m_table;
    std::int64_t m_lastRow = 0; ///< before the first that is added
    std::unique_ptr<TriggersAtRest> m_rest;
};

} // namespace norvane::store
