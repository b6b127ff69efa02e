// What a level from another shop would be on the keyboard of this one.
#pragma once

#include "keys/layout/KeyEditor.h"
#include "keys/layout/KeyWords.h"

#include <QStringList>

#include <vector>

namespace norvane::keys
{

/// Found before anything is changed.
struct LevelImport {
    std::vector<FilledKey> keys; ///< all of the level
    QStringList missing;         ///< "Key 5: PLU 1003 Latte"; the keys will point at nothing
    QStringList renamed;         ///< items of this shop with another number or name
    int changed = 0;             ///< keys of the shown level that would do something else
};

/// Finds the items of @p keys, key number 1 first, in the current tables: by number and name, else the only
/// one of this name, else by number; of a function the number decides. Changes nothing.
/// @throws RuntimeFailure as BoundQuery and KeyItems.
[[nodiscard]] LevelImport planLevelImport(const std::vector<KeyWords>& keys, KeyLevel& level,
                                          store::Database& database);

} // namespace norvane::keys
