// Finds keys, and items without keys, on all levels.
#pragma once

#include "keys/layout/KeyboardKeys.h"

#include <optional>

namespace norvane::keys
{

/// What is looked for.
enum class KeyFilter {
    Programmed, ///< keys that do something
    Missing,    ///< keys whose item is in no table
    Repeated,   ///< keys of a PLU that is on more than one
    OnNoKey,    ///< items that are on no key of any level
};

/// A line of the list.
struct KeyHit {
    std::optional<PlacedKey> key; ///< nothing for an item that is on no key
    ItemKind kind = ItemKind::Function;
    QString number; ///< of the item, without leading zeros
    QString text;   ///< "PLU 1001 Cola"
};

/// Keys are listed by level and number, those of the same PLU together if they are repeated; items by kind,
/// PLUs first, and number. @throws RuntimeFailure as BoundQuery.
[[nodiscard]] std::vector<KeyHit> searchKeys(const KeyboardKeys& keyboard, KeyFilter filter,
                                             store::Database& database);

} // namespace norvane::keys
