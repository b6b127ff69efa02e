// Finds damage in a customer's database before anything is written to it.
#pragma once

#include <QString>

namespace norvane::store
{

/// What is wrong with the database at @p path, in words for the user; empty when it is sound. A file that is
/// no database of ours is empty too: opening refuses it each time, so nobody can write to it. So is one that
/// is missing or that another program keeps locked.
///
/// Takes some 50 ms for 100,000 PLUs. A large file is one of many years of sales; these tables are passed
/// over then, so that the start does not become slower from year to year. Writes nothing but what a crashed
/// program left to be undone.
[[nodiscard]] QString damageOf(const QString& path);

} // namespace norvane::store
