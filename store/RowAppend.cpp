// Which months lose their totals after an append; see RowAppend.h.
#include "store/RowAppend.h"

#include "platform/RuntimeFailure.h"
#include "store/Companions.h"
#include "store/DatabasePrivate.h"
#include "store/PreparedStatement.h"
#include "store/SalesTables.h"
#include "store/TriggersAtRest.h"

namespace norvane::store
{

RowAppend::RowAppend(Database& database, const Transaction&, const QString& table)
    : m_database(*database.d), m_table(m_database.shape(table)->name())
{
    if (!Schema(m_database.connection()).declarationOf(addedMonthsName(m_table)))
        return;
    PreparedStatement last(m_database.connection(), "SELECT max(_rowid_) FROM " + quotedName(m_table),
                           m_table);
    m_lastRow = last.step() ? last.whole(0) : 0;
    m_rest = std::make_unique<TriggersAtRest>(m_database.connection());
}

RowAppend::~RowAppend()
{
    if (!m_rest)
        return;
    m_rest.reset();
    try {
        dropMonths();
    } catch (const RuntimeFailure&) {
        m_database.rollBackQuietly();
    }
}

/// New rows have the highest row ids. Months between the first and the last of theirs are dropped with them:
/// that costs no more than adding them up once more. The plus keeps the engine from walking the index over
/// the days, which is as long as the table.
void RowAppend::dropMonths()
{
    const std::string day = quotedName(QLatin1StringView(salestable::day));
    PreparedStatement drop(m_database.connection(),
                           "DELETE FROM " + quotedName(addedMonthsName(m_table)) +
                               " WHERE month BETWEEN (SELECT substr(min(+" + day + "), 1, 7) FROM " +
                               quotedName(m_table) + " WHERE _rowid_ > ?1) AND (SELECT substr(max(+" + day +
                               "), 1, 7) FROM " + quotedName(m_table) + " WHERE _rowid_ > ?1)",
                           m_table);
    drop.bind(1, m_lastRow);
    drop.run();
}

} // namespace norvane::store
