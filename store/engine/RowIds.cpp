// The table of deleted row ids; see RowIds.h.
#include "store/engine/RowIds.h"

#include "store/engine/PreparedStatement.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

PreparedStatement statementOf(Connection& connection, const TableShape& table, const std::string& sql)
{
    return {connection.handle(), sql, u"%1, table %2."_s.arg(connection.path(), table.name())};
}

void makeTable(Connection& connection, const TableShape& table)
{
    statementOf(connection, table,
                "CREATE TABLE IF NOT EXISTS norvane_retired (table_name TEXT COLLATE NOCASE PRIMARY KEY, "
                "last INTEGER) STRICT, WITHOUT ROWID")
        .run();
}

std::string quotedText(const QString& text)
{
    return '\'' + QString(text).replace(u'\'', u"''"_s).toStdString() + '\'';
}

/// The highest row id in use.
std::string highestRowId(const TableShape& table)
{
    return "SELECT MAX(_rowid_) AS highest FROM " + quotedName(table.name());
}

} // namespace

void retireRowIds(Connection& connection, const TableShape& table, std::int64_t last)
{
    makeTable(connection, table);
    // Only the highest of a table can be reused: the others need not be remembered.
    auto insert = statementOf(connection, table,
                              "INSERT INTO norvane_retired SELECT " + quotedText(table.name()) +
                                  ", highest FROM (" + highestRowId(table) +
                                  ") WHERE highest <= ? ON CONFLICT DO UPDATE SET last = MAX(last, "
                                  "excluded.last)");
    insert.bind(1, last);
    insert.run();
    connection.countRetirement();
}

void retireAllRowIds(Connection& connection, const TableShape& table)
{
    retireRowIds(connection, table, std::numeric_limits<std::int64_t>::max());
}

std::string unusedRowId(Connection& connection, const TableShape& table)
{
    makeTable(connection, table);
    return "(SELECT 1 + MAX(COALESCE((SELECT last FROM norvane_retired WHERE table_name = " +
           quotedText(table.name()) + "), 0), COALESCE((" + highestRowId(table) + "), 0)))";
}

} // namespace norvane::store
