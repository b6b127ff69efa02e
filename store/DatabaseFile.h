// Opening and making database files: what is ours, what is left alone.
#pragma once

#include "store/Definitions.h"

#include <SQLiteCpp/Database.h>

namespace norvane::store
{

/// How long every connection waits for a file that another program holds: no work of ours holds one this
/// long, and a user can wait for it.
inline constexpr int busyMilliseconds = 5000;

/// Opens an existing file for reading and, where it may be written, for writing. @throws as Database does.
[[nodiscard]] SQLite::Database openDatabaseFile(const QString& path);

/// The same before anything but the header was read: whether the file is whole is not known yet.
[[nodiscard]] SQLite::Database openUnreadDatabaseFile(const QString& path);

/// Makes a file beside @p path and puts it in its place once it is whole.
/// @throws RuntimeFailure 75, 61.
void createDatabaseFile(const QString& path, const QVector<TableDefinition>& tables);

} // namespace norvane::store
