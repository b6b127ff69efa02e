// Finds keys on the current level and on all levels.
#pragma once

#include "keys/KeyPlaces.h"
#include "keys/layout/KeyLevel.h"

#include <vector>

namespace norvane::keys
{

/// The cells of the level whose text contains @p part, in any case, row by row; none for an empty part.
[[nodiscard]] std::vector<KeyCell> cellsWith(const KeyLevel& level, const QString& part);

/// The keys that do the same as @p key: on the current level with its unsaved changes, on all others as
/// stored in the tables. An unprogrammed key has no others.
[[nodiscard]] std::vector<KeyPlace> keysLike(const Key& key, const KeyLevel& level,
                                             store::Database& database);

} // namespace norvane::keys
