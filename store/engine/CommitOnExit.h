// Bulk work that is stored in one go.
#pragma once

namespace norvane::store
{

class Connection;
class Database;

/// A transaction that commits when it goes out of scope, also while an exception passes. Work done before a
/// failure is kept: half a file is worth more to a shop than none, and the message names the line that
/// failed. Only a killed process or a power cut rolls back. Nesting is allowed: the outermost one counts.
/// Work that must be stored wholly or not at all uses allOrNothing() of AllOrNothing.h.
class CommitOnExit
{
public:
    /// @throws RuntimeFailure with Failure::DatabaseLocked if another program keeps the file locked, and as
    /// the engine reports.
    explicit CommitOnExit(Database& database);
    ~CommitOnExit();
    CommitOnExit(const CommitOnExit&) = delete;
    CommitOnExit& operator=(const CommitOnExit&) = delete;
    /// Commits now and reports what goes wrong. @throws RuntimeFailure with Failure::DiskFull,
    /// Failure::PathOrFileAccess, Failure::DatabaseLocked ...
    void commit();
    /// Restores everything to the start of the transaction; for the outermost one only. Recordsets opened
    /// since then must be destroyed first.
    void rollBack();
    /// Whether there is work that commit() would keep. A full disk ends a transaction by itself.
    [[nodiscard]] bool isOpen() const;

private:
    Connection& m_connection;
    bool m_open = true;
};

} // namespace norvane::store
