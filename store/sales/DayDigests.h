// Digests of whole days beside a sales table, so that years are compared with a copy elsewhere in no time.
#pragma once

#include "store/engine/Database.h"

#include <QDate>

#include <cstdint>
#include <map>
#include <string>

namespace norvane::store
{

/// A digest of all rows of a day in one sales table, made by a caller and stored with the table. Triggers of
/// the file drop the digest of a day when any program adds, changes, deletes or replaces a row of it, so an
/// existing digest is right. Recordsets, screens and the list of tables do not know them.
class DayDigests
{
public:
    /// @p table is one that the catalogue finds by a day (TableDefinition::searchedField). The database must
    /// outlive this. @throws RuntimeFailure with Failure::UnknownName if the file has no such table.
    DayDigests(Database& database, const QString& table);

    /// The digest of each day that has one; nothing if the file has no table for them.
    [[nodiscard]] std::map<QDate, std::string> stored() const;
    /// Stores them, in the open transaction or a separate one. Does nothing if the file has no table for
    /// them. @throws RuntimeFailure as the database reports.
    void keep(const std::map<QDate, std::string>& digests);

    /// A value that changes when another connection changes the file: what was read before may be outdated.
    /// @throws RuntimeFailure as the database reports.
    [[nodiscard]] static std::int64_t changesByOthers(Database& database);

private:
    Connection& m_connection;
    QString m_table;
    bool m_available;
};

} // namespace norvane::store
