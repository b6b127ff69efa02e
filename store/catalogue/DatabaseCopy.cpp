// Rows go from file to file inside the engine; see DatabaseCopy.h.
#include "store/catalogue/DatabaseCopy.h"

#include "platform/FilePaths.h"
#include "platform/RuntimeFailure.h"
#include "store/catalogue/Catalogue.h"
#include "store/catalogue/Upgrade.h"
#include "store/engine/AllOrNothing.h"
#include "store/engine/Connection.h"
#include "store/engine/DatabaseFile.h"
#include "store/engine/PreparedStatement.h"
#include "store/engine/SqliteFailures.h"
#include "store/engine/TriggersAtRest.h"

#include <QFile>
#include <sqlite3.h>

using namespace Qt::Literals::StringLiterals;

namespace norvane::store
{
namespace
{

/// The other file as the statements name it.
constexpr const char* otherFile = "safety";

void run(sqlite3* handle, const std::string& sql, const QString& path)
{
    PreparedStatement(handle, sql, path).run();
}

/// Another file on the same connection.
class AttachedFile
{
public:
    AttachedFile(sqlite3* handle, const QString& path) : m_handle(handle)
    {
        PreparedStatement attach(handle, std::string("ATTACH ? AS ") + otherFile, path);
        const Value file = Value::text(path);
        attach.bind(1, file);
        attach.run();
    }
    ~AttachedFile()
    {
        sqlite3_exec(m_handle, (std::string("DETACH ") + otherFile).c_str(), nullptr, nullptr, nullptr);
    }
    AttachedFile(const AttachedFile&) = delete;
    AttachedFile& operator=(const AttachedFile&) = delete;

private:
    sqlite3* m_handle;
};

bool growsForEver(const QString& table)
{
    const auto* const known = catalogueTable(table);
    return known != nullptr && !known->searchedField.isEmpty();
}

QVector<TableDefinition> programmeTables(sqlite3* handle)
{
    const Schema schema(handle);
    QVector<TableDefinition> tables;
    for (const QString& name : schema.tableNames()) {
        if (!growsForEver(name))
            tables.append(*schema.read(name));
    }
    return tables;
}

/// Rows keep their ids: a screen that shows a record must not find another one in its place.
std::string moveRows(const QString& table, const QStringList& fields, const std::string& from,
                     const std::string& to)
{
    std::string columns = "_rowid_";
    for (const QString& field : fields)
        columns += ", " + quotedName(field);
    const std::string name = '.' + quotedName(table);
    return "INSERT INTO " + to + name + " (" + columns + ") SELECT " + columns + " FROM " + from + name;
}

QStringList fieldNames(const TableDefinition& table)
{
    QStringList names;
    for (const auto& field : table.fields)
        names.append(field.name);
    return names;
}

void copyProgramme(SQLite::Database& source, const QString& from, const QString& to)
{
    sqlite3* const handle = source.getHandle();
    const auto tables = programmeTables(handle);
    createDatabaseFile(to, tables);
    const AttachedFile target(handle, to);
    // An incomplete copy is removed, so it needs no rollback.
    run(handle, std::string("PRAGMA ") + otherFile + ".journal_mode = OFF", to);
    // One transaction, so that all tables are of one moment.
    run(handle, "BEGIN", from);
    for (const auto& table : tables)
        run(handle, moveRows(table.name, fieldNames(table), "main", otherFile), to);
    run(handle, "COMMIT", to);
}

/// How the target of copyPages() is written. The engine writes a page at a time: in large ones years of sales
/// take little more than a plain copy of the file, in those of the source twice as long. A small cache keeps
/// them near the processor. The copy that results has the page size of its source.
constexpr const char* targetSettings[] = {
    // An incomplete copy is removed, so it needs no rollback.
    "PRAGMA journal_mode = OFF",
    "PRAGMA page_size = 65536",
    "VACUUM",
    "PRAGMA cache_size = -256",
};

/// Returns once the copy is on the disk: what the job deletes next may be nowhere else.
void copyPages(SQLite::Database& source, const QString& to)
{
    createDatabaseFile(to, {});
    auto target = openUnreadDatabaseFile(to);
    for (const char* const sql : targetSettings)
        run(target.getHandle(), sql, to);
    sqlite3_backup* const backup =
        sqlite3_backup_init(target.getHandle(), "main", source.getHandle(), "main");
    if (backup != nullptr) {
        sqlite3_backup_step(backup, -1);
        sqlite3_backup_finish(backup);
    }
    if (sqlite3_errcode(target.getHandle()) != SQLITE_OK)
        failWithSqlite(target.getHandle(), to);
}

/// The fields that both have, as spelled in the database.
QStringList commonFields(const TableDefinition& table, const TableDefinition& copied)
{
    QStringList names;
    for (const auto& field : table.fields) {
        if (fieldNamed(copied, field.name) != nullptr)
            names.append(field.name);
    }
    return names;
}

/// Puts rows of the file at @p from in place of those of the table. @return how many.
qint64 replaceRows(Database& database, const QString& table, const QStringList& fields, const QString& from)
{
    sqlite3* const handle = connectionOf(database).handle();
    database.execute(u"delete * from [%1]"_s.arg(table));
    // Emptying dropped the totals of months too: nothing is left for the triggers to do.
    const TriggersAtRest rest(handle);
    return PreparedStatement(handle, moveRows(table, fields, otherFile, "main"), from).run();
}

bool isWhole(sqlite3* handle, const QString& table, const QString& path)
{
    PreparedStatement check(
        handle, std::string("PRAGMA ") + otherFile + ".quick_check(" + quotedName(table) + ')', path);
    return check.step() && check.text(0) == u"ok"_s;
}

/// Takes the rows of one table over from the file at @p from. @return false when they are damaged there.
bool rescueTable(sqlite3* handle, const TableDefinition& table, const QString& from)
{
    run(handle, "BEGIN", from);
    try {
        const bool rescued = isWhole(handle, table.name, from);
        if (rescued)
            run(handle, moveRows(table.name, fieldNames(table), otherFile, "main"), from);
        run(handle, "COMMIT", from);
        return rescued;
    } catch (const RuntimeFailure& failure) {
        sqlite3_exec(handle, "ROLLBACK", nullptr, nullptr, nullptr);
        if (failure.failure() == Failure::DiskFull)
            throw;
        return false;
    }
}

/// @return the tables that could not be taken over.
QStringList rescueTables(const QString& to, const QVector<TableDefinition>& tables, const QString& from)
{
    QStringList lost;
    for (const auto& table : tables)
        lost << table.name;
    if (!pathExists(from))
        return lost;
    auto target = openDatabaseFile(to);
    sqlite3* const handle = target.getHandle();
    try {
        const AttachedFile source(handle, existingPath(from));
        const TriggersAtRest rest(handle);
        for (const auto& table : tables) {
            if (rescueTable(handle, table, from))
                lost.removeOne(table.name);
        }
    } catch (const RuntimeFailure& failure) {
        if (failure.failure() == Failure::DiskFull)
            throw;
    }
    return lost;
}

/// Upgrades a database to the current layout. @return the tables that it lacked.
QVector<TableDefinition> addMissingTables(const QString& path)
{
    QVector<TableDefinition> missing;
    UpgradeDatabase(path);
    Database database(path);
    for (const auto& table : catalogue()) {
        if (!database.hasTable(table.name)) {
            database.addTable(table);
            missing << table;
        }
    }
    completeDatabase(path);
    return missing;
}

} // namespace

void copyDatabase(const QString& from, const QString& to, CopyOf what)
{
    QFile::remove(to);
    auto source = openDatabaseFile(existingPath(from));
    try {
        if (what == CopyOf::Everything) {
            copyPages(source, to);
        } else {
            copyProgramme(source, from, to);
        }
    } catch (const RuntimeFailure&) {
        QFile::remove(to);
        throw;
    }
}

void restoreTables(Database& database, const QString& copy)
{
    const Database copied(copy);
    (void)takeTables(database, copy, copied.tableNames());
}

qint64 takeTables(Database& database, const QString& from, const QStringList& tables,
                  const QStringList& omittedFields)
{
    const Database other(from);
    const AttachedFile source(connectionOf(database).handle(), existingPath(from));
    qint64 rows = 0;
    allOrNothing(database, [&] {
        for (const QString& name : tables) {
            if (!database.hasTable(name) || !other.hasTable(name))
                continue;
            const TableDefinition table = database.table(name);
            QStringList fields = commonFields(table, other.table(name));
            fields.removeIf(
                [&](const QString& field) { return omittedFields.contains(field, Qt::CaseInsensitive); });
            rows += replaceRows(database, table.name, fields, from);
        }
    });
    return rows;
}

QStringList rebuildDatabase(const QString& copy, const QString& damaged, const QString& to)
{
    copyDatabase(copy, to, CopyOf::Everything);
    try {
        return rescueTables(to, addMissingTables(to), damaged);
    } catch (const RuntimeFailure&) {
        QFile::remove(to);
        throw;
    }
}

} // namespace norvane::store
