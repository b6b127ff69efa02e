// The open database: its connection, the shapes of its tables, statements; see Database.h.
#include "store/engine/Database.h"

#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "store/engine/DatabaseFile.h"
#include "store/engine/DatabasePrivate.h"
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

/// The tables that the triggers of @p table keep right, as far as the file has them.
QStringList tablesOfTriggers(sqlite3* connection, const QString& table)
{
    QStringList names{addedMonthsName(table), monthTotalsName(table), dayDigestsName(table)};
    names.removeIf([&](const QString& each) { return !Schema(connection).declarationOf(each); });
    return names;
}

} // namespace

QString engineVersion()
{
    return QString::fromLatin1(sqlite3_libversion());
}

Database::Private::Private(const QString& path)
    : m_path(existingPath(path)), m_connection(openDatabaseFile(m_path))
{
}

std::shared_ptr<const TableShape> Database::Private::findShape(const QString& table)
{
    auto& shape = m_shapes[table.toCaseFolded()];
    if (!shape) {
        if (auto definition = Schema(connection()).read(table))
            shape = std::make_shared<const TableShape>(std::move(*definition));
    }
    return shape;
}

std::shared_ptr<const TableShape> Database::Private::shape(const QString& table)
{
    auto shape = findShape(table);
    if (!shape) {
        throw RuntimeFailure(Failure::UnknownName,
                             u"Item not found: %1 has no table %2."_s.arg(m_path, table));
    }
    return shape;
}

std::int64_t Database::Private::changes() const
{
    return sqlite3_total_changes64(connection());
}

Database::Database(const QString& path) : d(std::make_unique<Private>(path)) {}
Database::~Database() = default;

void Database::create(const QString& path, const QVector<TableDefinition>& tables)
{
    createDatabaseFile(existingPath(path), tables);
}

Recordset Database::openTable(const QString& table)
{
    return Recordset(std::make_unique<Recordset::Private>(*d, d->shape(table)));
}

Recordset Database::openQuery(const QString& sql)
{
    const QString table = loneTableName(sql);
    if (!table.isEmpty()) {
        if (auto shape = d->findShape(table))
            return Recordset(std::make_unique<Recordset::Private>(*d, std::move(shape)));
        failQuery(sql);
    }
    return Recordset(std::make_unique<Recordset::Private>(*d, sql));
}

qint64 Database::execute(const QString& sql)
{
    const auto translated = translateSql(sql);
    if (!translated.changesRecords)
        failQuery(sql);
    PreparedStatement statement(d->connection(), translated.sql.toStdString(), sql);
    const auto emptied = d->findShape(translated.deletesFrom);
    if (!emptied)
        return statement.run();
    Savepoint savepoint(d->connection());
    retireAllRowIds(*d, *emptied);
    // Without the triggers of a table the engine frees its pages as a whole. With them it would visit every
    // row: ten years of sales would take minutes instead of seconds.
    std::optional<TriggersAtRest> rest;
    if (const auto kept = tablesOfTriggers(d->connection(), emptied->name());
        translated.deletesAll && !kept.isEmpty()) {
        rest.emplace(d->connection());
        // Does the triggers' work for all rows together.
        for (const QString& each : kept)
            PreparedStatement(d->connection(), "DELETE FROM " + quotedName(each), each).run();
    }
    const qint64 touched = statement.run();
    savepoint.keep();
    return touched;
}

QStringList Database::tableNames() const
{
    return Schema(d->connection()).tableNames();
}

bool Database::hasTable(const QString& table) const
{
    return d->findShape(table) != nullptr;
}

TableDefinition Database::table(const QString& table) const
{
    return d->shape(table)->definition();
}

void Database::addTable(const TableDefinition& table)
{
    if (hasTable(table.name))
        failExists(Failure::TableExists, u"Table %1"_s.arg(table.name));
    Schema(d->connection()).addTable(table);
    d->forgetShapes();
}

void Database::addField(const QString& table, const FieldDefinition& field)
{
    const auto shape = d->shape(table);
    if (fieldNamed(shape->definition(), field.name) != nullptr) {
        failExists(Failure::FieldExists, u"Field %1 of table %2"_s.arg(field.name, shape->name()));
    }
    Schema(d->connection()).addField(shape->definition(), field);
    d->forgetShapes();
}

void Database::complete(const QVector<TableDefinition>& tables)
{
    Schema schema(d->connection());
    for (const auto& table : tables)
        schema.completeTable(table);
    d->forgetShapes();
}

void Database::refresh()
{
    d->forgetShapes();
}

} // namespace norvane::store
