// Finds damage in a customer's database before anything is written to it.
#pragma once

#include <QString>

namespace norvane::store
{

/// What is wrong with the database at @p path, in words for the user; empty text when it is sound. Also empty
/// for a file that is not a database of this program, is missing or is locked by another program: opening
/// such a file always fails, so nothing can be written to it.
///
/// Takes some 50 ms for 100,000 PLUs. A large file has many years of sales; these tables are then skipped, so
/// that the start does not become slower from year to year. Writes nothing, except to roll back the
/// unfinished work of a crashed program.
[[nodiscard]] QString damageOf(const QString& path);

/// Whether the file at @p path begins as the databases of the former program do. A file that cannot be read
/// does not.
[[nodiscard]] bool isFormerDatabase(const QString& path);

} // namespace norvane::store
