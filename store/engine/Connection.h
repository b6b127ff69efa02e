// What an open database holds; used only inside the store.
#pragma once

#include "store/engine/Database.h"
#include "store/engine/Schema.h"

#include <QHash>
#include <SQLiteCpp/Database.h>

#include <memory>

namespace norvane::store
{

/// The connection of a Database to the engine, the shapes of its tables and its transactions.
class Connection
{
public:
    Connection(const QString& path, IfLocked ifLocked);

    [[nodiscard]] sqlite3* handle() const { return m_sqlite.getHandle(); }
    [[nodiscard]] const QString& path() const { return m_path; }

    /// The shape of a table; nullptr if there is none of that name.
    [[nodiscard]] std::shared_ptr<const TableShape> findShape(const QString& table);
    /// @throws RuntimeFailure with Failure::UnknownName if there is none.
    [[nodiscard]] std::shared_ptr<const TableShape> shape(const QString& table);
    void forgetShapes() { m_shapes.clear(); }

    void beginTransaction();
    /// @return true when this was the outermost one and is to be committed.
    [[nodiscard]] bool endTransaction();
    void commit();
    /// Whether the engine holds a transaction open.
    [[nodiscard]] bool inTransaction() const;
    void rollBackQuietly() noexcept;

    /// Counts every row that this connection has changed.
    [[nodiscard]] std::int64_t changes() const;
    /// Identifies a transaction; 0 outside of any.
    [[nodiscard]] std::int64_t transactionNumber() const { return m_depth > 0 ? m_transactions : 0; }

    /// Counts the times that rows were deleted; see RowIds.h.
    [[nodiscard]] std::int64_t retirements() const { return m_retirements; }
    void countRetirement() { ++m_retirements; }

private:
    QString m_path;
    SQLite::Database m_sqlite;
    QHash<QString, std::shared_ptr<const TableShape>> m_shapes;
    int m_depth = 0;
    std::int64_t m_transactions = 0;
    std::int64_t m_retirements = 0;
};

/// For the types of the store that work on the engine itself. Lives as long as @p database.
[[nodiscard]] Connection& connectionOf(Database& database);

} // namespace norvane::store
