// Statements and definitions of an open database; see Database.h.
#include "store/engine/Database.h"

#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "store/engine/Connection.h"
#include "store/engine/DatabaseFile.h"
#include "store/engine/PreparedStatement.h"
#include "store/engine/Recordset.h"
#include "store/engine/RecordsetPrivate.h"
#include "store/engine/RowIds.h"
#include "store/engine/Savepoint.h"
#include "store/engine/SqlTranslation.h"
#include "store/engine/TriggersAtRest.h"

#include <sqlite3.h>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

[[noreturn]] void failExists(Failure number, const QString& what)
{
    throw RuntimeFailure(number, u"%1 already exists."_s.arg(what));
}

[[noreturn]] void failQuery(const QString& sql)
{
    throw RuntimeFailure(Failure::UnknownNameInQuery, u"Unknown name or faulty statement. \"%1\""_s.arg(sql));
}

/// The tables that the triggers of @p table keep correct, as far as the file has them.
QStringList tablesOfTriggers(sqlite3* handle, const QString& table)
{
    QStringList names{dayDigestsName(table)};
    for (const TotalsLevel& level : {monthLevelOf(table), yearLevelOf(table)})
        names << level.list << level.totals;
    names.removeIf([&](const QString& each) { return !Schema(handle).declarationOf(each); });
    return names;
}

} // namespace

QString engineVersion()
{
    return QString::fromLatin1(sqlite3_libversion());
}

Connection& connectionOf(Database& database)
{
    return *database.m_connection;
}

Database::Database(const QString& path, IfLocked ifLocked)
    : m_connection(std::make_unique<Connection>(path, ifLocked))
{
}
Database::~Database() = default;

void Database::create(const QString& path, const QVector<TableDefinition>& tables)
{
    createDatabaseFile(existingPath(path), tables);
}

Recordset Database::openTable(const QString& table)
{
    return Recordset(std::make_unique<Recordset::Private>(*m_connection, m_connection->shape(table)));
}

Recordset Database::openQuery(const QString& sql)
{
    const QString table = loneTableName(sql);
    if (!table.isEmpty()) {
        if (auto shape = m_connection->findShape(table))
            return Recordset(std::make_unique<Recordset::Private>(*m_connection, std::move(shape)));
        failQuery(sql);
    }
    return Recordset(std::make_unique<Recordset::Private>(*m_connection, sql));
}

qint64 Database::execute(const QString& sql)
{
    const auto translated = translateSql(sql);
    if (!translated.changesRecords)
        failQuery(sql);
    PreparedStatement statement(m_connection->handle(), translated.sql.toStdString(), sql);
    const auto emptied = m_connection->findShape(translated.deletesFrom);
    if (!emptied)
        return statement.run();
    Savepoint savepoint(m_connection->handle());
    retireAllRowIds(*m_connection, *emptied);
    // Without the triggers of a table the engine frees its pages as a whole. With them it would visit every
    // row: ten years of sales would take minutes instead of seconds.
    std::optional<TriggersAtRest> rest;
    if (const auto kept = tablesOfTriggers(m_connection->handle(), emptied->name());
        translated.deletesAll && !kept.isEmpty()) {
        rest.emplace(m_connection->handle());
        // Does the triggers' work for all rows together.
        for (const QString& each : kept)
            PreparedStatement(m_connection->handle(), "DELETE FROM " + quotedName(each), each).run();
    }
    const qint64 touched = statement.run();
    savepoint.keep();
    return touched;
}

QStringList Database::tableNames() const
{
    return Schema(m_connection->handle()).tableNames();
}

bool Database::hasTable(const QString& table) const
{
    return m_connection->findShape(table) != nullptr;
}

TableDefinition Database::table(const QString& table) const
{
    return m_connection->shape(table)->definition();
}

void Database::addTable(const TableDefinition& table)
{
    if (hasTable(table.name))
        failExists(Failure::TableExists, u"Table %1"_s.arg(table.name));
    Schema(m_connection->handle()).addTable(table);
    m_connection->forgetShapes();
}

void Database::addField(const QString& table, const FieldDefinition& field)
{
    const auto shape = m_connection->shape(table);
    if (fieldNamed(shape->definition(), field.name) != nullptr) {
        failExists(Failure::FieldExists, u"Field %1 of table %2"_s.arg(field.name, shape->name()));
    }
    Schema(m_connection->handle()).addField(shape->definition(), field);
    m_connection->forgetShapes();
}

void Database::complete(const QVector<TableDefinition>& tables)
{
    Schema schema(m_connection->handle());
    for (const auto& table : tables)
        schema.completeTable(table);
    m_connection->forgetShapes();
}

void Database::refresh()
{
    m_connection->forgetShapes();
}

} // namespace norvane::store
