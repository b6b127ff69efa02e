// Which months lose their totals after an append; see RowAppend.h.
#include "store/sales/RowAppend.h"

#include "platform/RuntimeFailure.h"
#include "store/catalogue/SalesTables.h"
#include "store/engine/CommitOnExit.h"
#include "store/engine/Companions.h"
#include "store/engine/Connection.h"
#include "store/engine/PreparedStatement.h"
#include "store/engine/TriggersAtRest.h"

namespace norvane::store
{

RowAppend::RowAppend(Database& database, const CommitOnExit&, const QString& table)
    : m_connection(connectionOf(database)), m_table(m_connection.shape(table)->name())
{
    if (!Schema(m_connection.handle()).declarationOf(monthLevelOf(m_table).list))
        return;
    PreparedStatement last(m_connection.handle(), "SELECT max(_rowid_) FROM " + quotedName(m_table), m_table);
    m_lastRow = last.step() ? last.whole(0) : 0;
    m_rest = std::make_unique<TriggersAtRest>(m_connection.handle());
}

RowAppend::~RowAppend()
{
    if (!m_rest)
        return;
    m_rest.reset();
    try {
        dropKept();
    } catch (const RuntimeFailure&) {
        m_connection.rollBackQuietly();
    }
}

/// New rows have the highest row ids. Digests and totals between the first and the last of their days are
/// dropped too: that only costs making them again. The plus keeps the engine from walking the index over the
/// days, which is as long as the table.
void RowAppend::dropKept()
{
    sqlite3* const handle = m_connection.handle();
    const std::string day = quotedName(QLatin1StringView(salestable::day));
    PreparedStatement days(handle,
                           "SELECT min(+" + day + "), max(+" + day + ") FROM " + quotedName(m_table) +
                               " WHERE _rowid_ > ?1",
                           m_table);
    days.bind(1, m_lastRow);
    if (!days.step())
        return;
    constexpr qsizetype lengthOfMonth = 7;
    const QString first = days.text(0);
    const QString last = days.text(1);
    days.reset();
    dropBetween(monthLevelOf(m_table).list, "month", first.left(lengthOfMonth), last.left(lengthOfMonth));
    if (Schema(handle).declarationOf(dayDigestsName(m_table)))
        dropBetween(dayDigestsName(m_table), "day", first, last);
}

void RowAppend::dropBetween(const QString& table, const char* key, const QString& first, const QString& last)
{
    PreparedStatement drop(m_connection.handle(),
                           "DELETE FROM " + quotedName(table) + " WHERE " + key + " BETWEEN ?1 AND ?2",
                           table);
    const Value range[] = {Value::text(first), Value::text(last)};
    drop.bind(1, range[0]);
    drop.bind(2, range[1]);
    drop.run();
}

} // namespace norvane::store
