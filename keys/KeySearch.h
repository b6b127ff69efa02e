// Finding keys of the level in hand, and of all levels.
#pragma once

#include "keys/KeyLevel.h"
#include "keys/KeyPlaces.h"

#include <vector>

namespace norvane::keys
{

/// The cells of the level whose text holds @p part, in any case of letters, row by row; none for an empty
/// part.
[[nodiscard]] std::vector<KeyCell> cellsWith(const KeyLevel& level, const QString& part);

/// The keys that do the same as @p key: on the level in hand as they stand there, on all others as the tables
/// have them. An unprogrammed key has no others.
[[nodiscard]] std::vector<KeyPlace> keysLike(const Key& key, const KeyLevel& level,
                                             store::Database& database);

} // namespace norvane::keys
