// The statements that make the companions; see Companions.h.
#include "store/Companions.h"

#include "store/PreparedStatement.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

std::string totalsDeclaration(const TableDefinition& table)
{
    std::string columns;
    for (const auto& field : table.fields) {
        columns += columns.empty() ? "" : ", ";
        columns += isAddedUp(field) ? quotedName(field.name) + " ANY" : columnDeclaration(field);
    }
    return "CREATE TABLE " + quotedName(monthTotalsName(table.name)) + " (" + columns + ") STRICT";
}

/// @p row is the engine's word for the row that was added or went: NEW or OLD.
std::string dropMonthOf(const TableDefinition& table, const std::string& row)
{
    return "DELETE FROM " + quotedName(addedMonthsName(table.name)) + " WHERE month = substr(" + row + '.' +
           quotedName(table.searchedField) + ", 1, 7); ";
}

Companion trigger(const QString& on, const char* event, const std::string& name, const std::string& body)
{
    const QString full = u"%1 %2"_s.arg(on, QString::fromStdString(name));
    return {Companion::Kind::Trigger, full,
            "CREATE TRIGGER " + quotedName(full) + " AFTER " + event + " ON " + quotedName(on) + " BEGIN " +
                body + "END"};
}

std::vector<Companion> triggersOf(const TableDefinition& table)
{
    const QString months = addedMonthsName(table.name);
    const std::string dropTotals = "DELETE FROM " + quotedName(monthTotalsName(table.name)) + " WHERE " +
                                   quotedName(table.searchedField) + " = OLD.month || '-01'; ";
    return {trigger(table.name, "INSERT", "insert", dropMonthOf(table, "NEW")),
            trigger(table.name, "UPDATE", "update", dropMonthOf(table, "OLD") + dropMonthOf(table, "NEW")),
            trigger(table.name, "DELETE", "delete", dropMonthOf(table, "OLD")),
            trigger(months, "DELETE", "delete", dropTotals)};
}

/// @p row as for dropMonthOf().
std::string dropDayOf(const TableDefinition& table, const std::string& row)
{
    return "DELETE FROM " + quotedName(dayDigestsName(table.name)) + " WHERE day = " + row + '.' +
           quotedName(table.searchedField) + "; ";
}

Companion indexOn(const QString& table, const QString& field)
{
    const QString name = table + u" search"_s;
    return {Companion::Kind::Index, name,
            "CREATE INDEX " + quotedName(name) + " ON " + quotedName(table) + " (" + quotedName(field) + ')'};
}

} // namespace

QString addedMonthsName(const QString& table)
{
    return u"norvane_added_months_"_s + table;
}

QString monthTotalsName(const QString& table)
{
    return u"norvane_month_totals_"_s + table;
}

Companion searchIndexOf(const TableDefinition& table)
{
    return indexOn(table.name, table.searchedField);
}

std::vector<Companion> monthCompanionsOf(const TableDefinition& table)
{
    const QString months = addedMonthsName(table.name);
    const QString totals = monthTotalsName(table.name);
    std::vector<Companion> all{
        {Companion::Kind::Table, months,
         "CREATE TABLE " + quotedName(months) + " (month TEXT PRIMARY KEY) STRICT, WITHOUT ROWID"},
        {Companion::Kind::Table, totals, totalsDeclaration(table)},
        indexOn(totals, table.searchedField),
    };
    for (Companion& each : triggersOf(table))
        all.push_back(std::move(each));
    return all;
}

QString dayDigestsName(const QString& table)
{
    return u"norvane_day_digests_"_s + table;
}

std::vector<Companion> dayCompanionsOf(const TableDefinition& table)
{
    const QString digests = dayDigestsName(table.name);
    return {
        {Companion::Kind::Table, digests,
         "CREATE TABLE " + quotedName(digests) +
             " (day TEXT PRIMARY KEY, digest TEXT NOT NULL) STRICT, WITHOUT ROWID"},
        trigger(table.name, "INSERT", "insert digest", dropDayOf(table, "NEW")),
        trigger(table.name, "UPDATE", "update digest", dropDayOf(table, "OLD") + dropDayOf(table, "NEW")),
        trigger(table.name, "DELETE", "delete digest", dropDayOf(table, "OLD")),
    };
}

} // namespace norvane::store
