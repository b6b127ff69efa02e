// One customer database file: tables and their definitions, recordsets and statements.
#pragma once

#include "store/engine/Definitions.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace norvane::store
{

class Connection;
class Recordset;

/// The version of the engine, such as "3.40.1".
[[nodiscard]] QString engineVersion();

/// What happens when another program holds the file.
enum class IfLocked {
    Wait, ///< until it is free, for some seconds
    Fail  ///< at once, with Failure::DatabaseLocked
};

/// An open database. Names of tables, fields and indexes match without regard to case. Not shared between
/// threads. Open recordsets must be destroyed before it.
class Database
{
public:
    /// Opens an existing file without writing to it. @throws RuntimeFailure with Failure::FileNotFound when
    /// it is missing, Failure::NotOurDatabase if it is not a database of this program, is damaged or belongs
    /// to the former engine, Failure::PathOrFileAccess when it cannot be read, Failure::DatabaseLocked.
    explicit Database(const QString& path, IfLocked ifLocked = IfLocked::Wait);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// Makes a new file holding @p tables, all empty. An existing file is replaced.
    static void create(const QString& path, const QVector<TableDefinition>& tables);

    /// A recordset on a table, placed on the first record in the order of its first index.
    /// @throws RuntimeFailure with Failure::UnknownName for an unknown table.
    [[nodiscard]] Recordset openTable(const QString& table);
    /// A recordset on the rows of a query, or on a table when @p sql is its name. The rows are those that the
    /// query finds now; those of one table's plain fields can be edited and deleted, others are read only.
    /// @throws RuntimeFailure with Failure::UnknownNameInQuery for an unknown name or a faulty statement.
    [[nodiscard]] Recordset openQuery(const QString& sql);
    /// Runs a delete or update statement in the words of the former engine ("delete * from x"). Emptying a
    /// table is quick whatever its size.
    /// @return the number of rows touched. @throws RuntimeFailure with Failure::UnknownNameInQuery.
    qint64 execute(const QString& sql);

    [[nodiscard]] QStringList tableNames() const;
    [[nodiscard]] bool hasTable(const QString& table) const;
    /// @throws RuntimeFailure with Failure::UnknownName for an unknown table.
    [[nodiscard]] TableDefinition table(const QString& table) const;
    /// @throws RuntimeFailure with Failure::TableExists when the table exists.
    void addTable(const TableDefinition& table);
    /// Old rows keep null in the new field, whatever its default and required mark.
    /// @throws RuntimeFailure with Failure::FieldExists when the field exists, Failure::UnknownName for an
    /// unknown table.
    void addField(const QString& table, const FieldDefinition& field);
    /// Creates the missing structures for quick queries of @p tables, such as the index over the day of a
    /// sales table, and converts number fields to digits, and yes/no fields to numbers, where @p tables have
    /// those. Missing tables are not created; a complete file is not written to.
    void complete(const QVector<TableDefinition>& tables);
    /// Reads the definitions again, after another connection may have changed them.
    void refresh();

private:
    friend Connection& connectionOf(Database& database);
    std::unique_ptr<Connection> m_connection;
};

} // namespace norvane::store
