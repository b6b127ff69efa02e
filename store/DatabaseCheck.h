// Finds damage in a customer's database before anything is written to it.
#pragma once

#include <QString>

namespace norvane::store
{

/// What is wrong with the database at @p path, in words for the user; empty text when it is sound. Empty,
/// too, for a file that is no database of ours, is missing or is locked by another program: opening such a
/// file fails each time, so nothing can be written to it.
///
/// Takes some 50 ms for 100,000 PLUs. A large file is one of many years of sales; these tables are passed
/// over then, so that the start does not become slower from year to year. Writes nothing, except that it
/// undoes what a crashed program left half done.
[[nodiscard]] QString damageOf(const QString& path);

} // namespace norvane::store
