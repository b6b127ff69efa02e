// See DayDigests.h.
#include "store/sales/DayDigests.h"

#include "store/catalogue/Catalogue.h"
#include "store/engine/Companions.h"
#include "store/engine/Connection.h"
#include "store/engine/PreparedStatement.h"
#include "store/engine/Savepoint.h"

namespace norvane::store
{
namespace
{

bool hasRoom(sqlite3* handle, TableDefinition existing)
{
    const TableDefinition* known = catalogueTable(existing.name);
    if (known == nullptr || known->searchedField.isEmpty())
        return false;
    existing.name = known->name;
    existing.searchedField = known->searchedField;
    return Schema(handle).hasAll(dayCompanionsOf(existing));
}

} // namespace

DayDigests::DayDigests(Database& database, const QString& table)
    : m_connection(connectionOf(database)), m_table(database.table(table).name),
      m_available(hasRoom(m_connection.handle(), database.table(table)))
{
}

std::map<QDate, std::string> DayDigests::stored() const
{
    std::map<QDate, std::string> digests;
    if (!m_available)
        return digests;
    PreparedStatement select(m_connection.handle(),
                             "SELECT day, digest FROM " + quotedName(dayDigestsName(m_table)), m_table);
    while (select.step()) {
        if (const QDate day = QDate::fromString(select.text(0), Qt::ISODate); day.isValid())
            digests.emplace(day, select.text(1).toStdString());
    }
    return digests;
}

void DayDigests::keep(const std::map<QDate, std::string>& digests)
{
    if (!m_available || digests.empty())
        return;
    Savepoint savepoint(m_connection.handle());
    PreparedStatement insert(
        m_connection.handle(),
        "INSERT OR REPLACE INTO " + quotedName(dayDigestsName(m_table)) + " VALUES (?1, ?2)", m_table);
    for (const auto& [day, digest] : digests) {
        const Value values[] = {Value::date(day), Value::text(digest)};
        const StatementRun run(insert);
        insert.bind(1, values[0]);
        insert.bind(2, values[1]);
        insert.run();
    }
    savepoint.keep();
}

std::int64_t DayDigests::changesByOthers(Database& database)
{
    PreparedStatement version(connectionOf(database).handle(), "PRAGMA data_version",
                              connectionOf(database).path());
    return version.step() ? version.whole(0) : 0;
}

} // namespace norvane::store
