// One customer database file: tables and their definitions, statements, transactions.
#pragma once

#include "store/Definitions.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace norvane::store
{

class Recordset;

/// The version of the engine, such as "3.40.1".
[[nodiscard]] QString engineVersion();

/// An open database. Names of tables, fields and indexes match without regard to case. Not shared between
/// threads. Open recordsets must be gone before it is.
class Database
{
public:
    /// Opens an existing file. @throws RuntimeFailure 53 when it is missing, 3343 when it is no database of
    /// ours, is damaged or belongs to the former engine, 75 when it cannot be read. Opening never writes.
    explicit Database(const QString& path);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// Makes a new file holding @p tables, all empty. An existing file is replaced.
    static void create(const QString& path, const QVector<TableDefinition>& tables);

    /// A recordset on a table, placed on the first record in the order of its first index.
    /// @throws RuntimeFailure 3265 for an unknown table.
    [[nodiscard]] Recordset openTable(const QString& table);
    /// A recordset on the rows of a query, or on a table when @p sql is its name. The rows are those that the
    /// query finds now; those of one table's plain fields can be edited and deleted, others are read only.
    /// @throws RuntimeFailure 3061 for an unknown name or a faulty statement.
    [[nodiscard]] Recordset openQuery(const QString& sql);
    /// Runs a delete or update statement in the words of the former engine ("delete * from x"). Emptying a
    /// table is quick whatever its size.
    /// @return the number of rows touched. @throws RuntimeFailure 3061.
    qint64 execute(const QString& sql);

    [[nodiscard]] QStringList tableNames() const;
    [[nodiscard]] bool hasTable(const QString& table) const;
    /// @throws RuntimeFailure 3265 for an unknown table.
    [[nodiscard]] TableDefinition table(const QString& table) const;
    /// @throws RuntimeFailure 3010 when the table exists.
    void addTable(const TableDefinition& table);
    /// Old rows keep null in the new field, whatever its default and required mark.
    /// @throws RuntimeFailure 3191 when the field exists, 3265 for an unknown table.
    void addField(const QString& table, const FieldDefinition& field);
    /// Makes what the file keeps beside @p tables for quick queries and still lacks, such as the index over
    /// the day of a sales table, and turns number fields into fields of digits, and yes/no fields into
    /// numbers, where @p tables have those.
    /// Tables that are missing stay so; a complete file is not written to.
    void complete(const QVector<TableDefinition>& tables);
    /// Reads the definitions anew, after another connection may have changed them.
    void refresh();

    class Private;

private:
    friend void restoreTables(Database& database, const QString& copy);
    friend class MonthTotals;
    friend class DayDigests;
    friend class BoundQuery;
    friend class Recordset;
    friend class RowAppend;
    friend class ShortWait;
    friend class Transaction;
    std::unique_ptr<Private> d;
};

/// While it lives, work on @p database waits less than half a second for a file that another program holds,
/// and then fails with 3260: a user who pressed a button must not look at a window that stands still.
class ShortWait
{
public:
    explicit ShortWait(Database& database);
    ~ShortWait();
    ShortWait(const ShortWait&) = delete;
    ShortWait& operator=(const ShortWait&) = delete;

private:
    Database& m_database;
};

/// Bulk work in one go: commits when it goes out of scope, also when a failure is thrown through it, since
/// what was done before a failure stays done. Only a killed process or a power cut rolls back. Nesting is
/// allowed: the outermost one counts.
class Transaction
{
public:
    explicit Transaction(Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    /// Commits now and reports what goes wrong. @throws RuntimeFailure 61, 75, 3260 ...
    void commit();
    /// Puts everything back as it was when the transaction began; for the outermost one only. Recordsets that
    /// were opened since must be gone.
    void rollBack();
    /// Whether there is work that commit() would keep. A full disk ends a transaction by itself.
    [[nodiscard]] bool isOpen() const;

private:
    Database& m_database;
    bool m_open = true;
};

} // namespace norvane::store
