// Several statements that are done completely or not at all.
#pragma once

struct sqlite3;

namespace norvane::store
{

/// Undoes what was done since it was made, unless it is kept. Outside a transaction, keeping commits.
class Savepoint
{
public:
    /// @throws RuntimeFailure as the engine reports.
    explicit Savepoint(sqlite3* handle);
    ~Savepoint();
    Savepoint(const Savepoint&) = delete;
    Savepoint& operator=(const Savepoint&) = delete;
    /// @throws RuntimeFailure as the engine reports; everything is undone then.
    void keep();

private:
    void run(const char* sql) const;

    sqlite3* m_handle;
    bool m_isOutermost; ///< keeping it commits
    bool m_kept = false;
};

} // namespace norvane::store
