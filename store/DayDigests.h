// Digests of whole days beside a sales table, so that years are compared with a copy elsewhere in no time.
#pragma once

#include "store/Database.h"

#include <QDate>

#include <cstdint>
#include <map>
#include <string>

namespace norvane::store
{

/// What somebody made of all rows of a day in one sales table, kept with the table. Triggers of the file drop
/// the digest of a day as soon as a row of it is added, changed, deleted or replaced, whoever does it, so a
/// digest that is there is right. Recordsets, screens and the list of tables do not know them.
class DayDigests
{
public:
    /// @p table is one that the catalogue finds by a day (TableDefinition::searchedField). The database must
    /// outlive this. @throws RuntimeFailure 3265 when the file has no such table.
    DayDigests(Database& database, const QString& table);

    /// The digest of each day that has one; nothing when the file has no room for them.
    [[nodiscard]] std::map<QDate, std::string> standing() const;
    /// Keeps them, in the open transaction or in one of its own. Nothing happens when the file has no room
    /// for them. @throws RuntimeFailure what the database reports.
    void keep(const std::map<QDate, std::string>& digests);

    /// Differs from what it was as soon as another connection has changed anything in the file: what was read
    /// before may no longer be so. @throws RuntimeFailure what the database reports.
    [[nodiscard]] static std::int64_t changesByOthers(Database& database);

private:
    Database::Private& m_database;
    QString m_table;
    bool m_available;
};

} // namespace norvane::store
