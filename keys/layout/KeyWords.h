// What a key does, in words for lists and files.
#pragma once

#include "keys/KeyItems.h"

namespace norvane::keys
{

/// The item of a key. A key that does nothing has empty words.
struct KeyWords {
    QString kind;   ///< "Function", "PLU", "Look-up"
    QString number; ///< without leading zeros
    QString name;   ///< empty if the item is in no table
    bool operator==(const KeyWords&) const = default;
};

[[nodiscard]] QString kindWord(ItemKind kind);
/// Of a key with its text as KeyItems gives it.
[[nodiscard]] KeyWords wordsOf(const Key& key);
/// The number of the key's item without leading zeros; of a function its id.
[[nodiscard]] QString shownItemNumber(const Key& key);
/// "PLU 1001 Cola", "PLU 1003, which does not exist", "not programmed".
[[nodiscard]] QString keyInWords(const Key& key);

} // namespace norvane::keys
