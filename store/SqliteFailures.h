// The one place that turns what SQLite reports into the failures that the rest of the system knows.
#pragma once

#include <QString>

struct sqlite3;

namespace norvane::store
{

/// Throws the failure that the connection's last error stands for. @p what names the file, table or statement
/// concerned.
/// @throws RuntimeFailure 3022 duplicate key, 3421 a value of the wrong kind, 3343 damaged, 3260 locked by
/// another program, 75 read only or not to be opened, 61 disk full, 57 device, 3061 for a faulty statement,
/// 3000 otherwise.
[[noreturn]] void failWithSqlite(sqlite3* connection, const QString& what);

} // namespace norvane::store
