// Records which rows a piece of work changes.
#pragma once

#include "store/engine/RowChanges.h"

#include <memory>

namespace norvane::store
{

/// While it lives, keeps what the rows of some tables were before this connection changes them, whatever
/// statement does it. Emptying a table then takes as long as deleting its rows one by one. A database has one
/// recorder at a time.
class ChangeRecorder
{
public:
    /// @param tables without those of sales, which may have millions of rows.
    ChangeRecorder(Database& database, const QStringList& tables);
    ~ChangeRecorder();
    ChangeRecorder(const ChangeRecorder&) = delete;
    ChangeRecorder& operator=(const ChangeRecorder&) = delete;

    /// Ends the recording. Work that was rolled back has changed nothing.
    /// @throws RuntimeFailure as the database reports.
    [[nodiscard]] RowChanges finish();

private:
    struct Recording;
    void stop();

    Database& m_database;
    std::unique_ptr<Recording> m_recording;
};

} // namespace norvane::store
