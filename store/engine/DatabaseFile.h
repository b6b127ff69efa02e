// Opening and making database files: which are this program's, and which are never touched.
#pragma once

#include "store/engine/Definitions.h"

#include <SQLiteCpp/Database.h>

namespace norvane::store
{

/// How long a connection waits for a file that another program holds: no work of this program holds one
/// this long, and a user can wait for it.
inline constexpr int busyMilliseconds = 5000;

/// Opens an existing file for reading and, where it may be written, for writing.
/// @param wait milliseconds for a file that another program holds; 0 fails at once. @throws as Database does.
[[nodiscard]] SQLite::Database openDatabaseFile(const QString& path, int wait = busyMilliseconds);

/// The same, but reads only the header: the rest of the file may be damaged.
[[nodiscard]] SQLite::Database openUnreadDatabaseFile(const QString& path, int wait = busyMilliseconds);

/// Makes a file beside @p path and puts it in its place once it is complete.
/// @throws RuntimeFailure with Failure::PathOrFileAccess, Failure::DiskFull.
void createDatabaseFile(const QString& path, const QVector<TableDefinition>& tables);

} // namespace norvane::store
