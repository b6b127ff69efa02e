// The statements that make the companions; see Companions.h.
#include "store/engine/Companions.h"

#include "store/engine/PreparedStatement.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

std::string totalsDeclaration(const TableDefinition& table, const QString& name)
{
    std::string columns;
    for (const auto& field : table.fields) {
        columns += columns.empty() ? "" : ", ";
        columns += isAddedUp(field) ? quotedName(field.name) + " ANY" : columnDeclaration(field);
    }
    return "CREATE TABLE " + quotedName(name) + " (" + columns + ") STRICT";
}

/// The day of the row that a trigger runs for. @p row is the engine's word for it: NEW or OLD.
std::string dayOf(const TableDefinition& table, const std::string& row)
{
    return row + '.' + quotedName(table.searchedField);
}

/// The day of the row that already has the number of the new one. REPLACE removes that row without running a
/// trigger for it.
std::string replacedDay(const TableDefinition& table)
{
    return "(SELECT " + quotedName(table.searchedField) + " FROM " + quotedName(table.name) +
           " WHERE _rowid_ = NEW._rowid_)";
}

std::string dropMonthOf(const TableDefinition& table, const std::string& day)
{
    return "DELETE FROM " + quotedName(monthLevelOf(table.name).list) + " WHERE month = substr(" + day +
           ", 1, 7); ";
}

std::string dropDigestOf(const TableDefinition& table, const std::string& day)
{
    return "DELETE FROM " + quotedName(dayDigestsName(table.name)) + " WHERE day = " + day + "; ";
}

Companion trigger(const QString& on, const char* event, const QString& name, const std::string& body)
{
    const QString full = u"%1 %2"_s.arg(on, name);
    return {Companion::Kind::Trigger, full,
            "CREATE TRIGGER " + quotedName(full) + ' ' + event + " ON " + quotedName(on) + ' ' + body};
}

std::string block(const std::string& statements)
{
    return "BEGIN " + statements + "END";
}

/// The triggers that run @p dropOf for the day of every row that is added, changed, deleted or replaced.
/// @p ending keeps their names apart from those of other triggers of the table.
std::vector<Companion> rowTriggers(const TableDefinition& table, const QString& ending,
                                   std::string (*dropOf)(const TableDefinition&, const std::string& day))
{
    const std::string dropNew = dropOf(table, dayOf(table, "NEW"));
    const std::string dropOld = dropOf(table, dayOf(table, "OLD"));
    const std::string dropReplaced = block(dropOf(table, replacedDay(table)));
    return {trigger(table.name, "AFTER INSERT", u"insert"_s + ending, block(dropNew)),
            trigger(table.name, "AFTER UPDATE", u"update"_s + ending, block(dropOld + dropNew)),
            trigger(table.name, "AFTER DELETE", u"delete"_s + ending, block(dropOld)),
            trigger(table.name, "BEFORE INSERT", u"replace by insert"_s + ending, dropReplaced),
            trigger(table.name, "BEFORE UPDATE", u"replace by update"_s + ending,
                    "WHEN NEW._rowid_ <> OLD._rowid_ " + dropReplaced)};
}

Companion indexOn(const QString& table, const QString& field)
{
    const QString name = table + u" search"_s;
    return {Companion::Kind::Index, name,
            "CREATE INDEX " + quotedName(name) + " ON " + quotedName(table) + " (" + quotedName(field) + ')'};
}

std::vector<Companion> tablesOf(const TableDefinition& table, const TotalsLevel& level)
{
    return {{Companion::Kind::Table, level.list,
             "CREATE TABLE " + quotedName(level.list) + " (month TEXT PRIMARY KEY) STRICT, WITHOUT ROWID"},
            {Companion::Kind::Table, level.totals, totalsDeclaration(table, level.totals)},
            indexOn(level.totals, table.searchedField)};
}

/// Totals are dropped as soon as their time is no longer listed.
Companion dropTotals(const TableDefinition& table, const TotalsLevel& level)
{
    return trigger(level.list, "AFTER DELETE", u"delete"_s,
                   block("DELETE FROM " + quotedName(level.totals) + " WHERE " +
                         quotedName(table.searchedField) + " = OLD.month || '-01'; "));
}

} // namespace

TotalsLevel monthLevelOf(const QString& table)
{
    const QString list = u"norvane_added_months_"_s + table;
    return {1, list, u"norvane_month_totals_"_s + table, u"select month from [%1]"_s.arg(list)};
}

TotalsLevel yearLevelOf(const QString& table)
{
    const QString list = u"norvane_added_years_"_s + table;
    return {12, list, u"norvane_year_totals_"_s + table,
            u"select month from [%1] y where 12 = (select count(*) from [%2] where month between "
            "y.month and substr(y.month, 1, 4) || '-12')"_s.arg(list, monthLevelOf(table).list)};
}

Companion searchIndexOf(const TableDefinition& table)
{
    return indexOn(table.name, table.searchedField);
}

std::vector<Companion> monthCompanionsOf(const TableDefinition& table)
{
    const TotalsLevel level = monthLevelOf(table.name);
    std::vector<Companion> all = tablesOf(table, level);
    for (Companion& each : rowTriggers(table, {}, dropMonthOf))
        all.push_back(std::move(each));
    all.push_back(dropTotals(table, level));
    return all;
}

std::vector<Companion> yearCompanionsOf(const TableDefinition& table)
{
    const TotalsLevel level = yearLevelOf(table.name);
    const QString months = monthLevelOf(table.name).list;
    const std::string dropYear = "DELETE FROM " + quotedName(level.list) + " WHERE month = substr(";
    std::vector<Companion> all = tablesOf(table, level);
    all.push_back(
        trigger(months, "AFTER INSERT", u"insert year"_s, block(dropYear + "NEW.month, 1, 4) || '-01'; ")));
    all.push_back(
        trigger(months, "AFTER DELETE", u"delete year"_s, block(dropYear + "OLD.month, 1, 4) || '-01'; ")));
    all.push_back(dropTotals(table, level));
    return all;
}

QString dayDigestsName(const QString& table)
{
    return u"norvane_day_digests_"_s + table;
}

std::vector<Companion> dayCompanionsOf(const TableDefinition& table)
{
    const QString digests = dayDigestsName(table.name);
    std::vector<Companion> all = rowTriggers(table, u" digest"_s, dropDigestOf);
    all.insert(all.begin(), {Companion::Kind::Table, digests,
                             "CREATE TABLE " + quotedName(digests) +
                                 " (day TEXT PRIMARY KEY, digest TEXT NOT NULL) STRICT, WITHOUT ROWID"});
    return all;
}

} // namespace norvane::store
