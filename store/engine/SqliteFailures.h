// The one place that turns what SQLite reports into the failures that the rest of the system knows.
#pragma once

#include <QString>

struct sqlite3;

namespace norvane::store
{

/// Throws the failure for the connection's last error. @p what names the file, table or statement concerned.
/// @throws RuntimeFailure with Failure::DuplicateKey, Failure::Conversion for a value of the wrong kind,
/// Failure::NotOurDatabase when damaged, Failure::DatabaseLocked when locked by another program,
/// Failure::PathOrFileAccess when read only or not to be opened, Failure::DiskFull, Failure::DeviceIo,
/// Failure::UnknownNameInQuery for a faulty statement, Failure::EngineFailure otherwise.
[[noreturn]] void failWithSqlite(sqlite3* handle, const QString& what);

} // namespace norvane::store
