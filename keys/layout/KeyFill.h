// Many items on many keys at once.
#pragma once

#include "keys/layout/KeyEditor.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace norvane::keys
{

/// Which items go on which keys.
struct FillWish {
    KeyCells cells; ///< a block; a single cell means all keys from there to the end of the level
    ItemKind kind = ItemKind::Plu;
    QStringList numbers;      ///< in the order of the keys
    qsizetype further = 0;    ///< items after these, which find no key
    bool skipsUsed = false;   ///< keys that are programmed keep what they do
    bool skipsPlaced = false; ///< an item that another key of the level has is left out
};

/// What a fill would do.
struct FillPlan {
    std::vector<FilledKey> keys; ///< in reading order
    int inUse = 0;               ///< those of them that were programmed
    qsizetype withoutRoom = 0;   ///< items beyond the last key
    int placed = 0;              ///< items left out since another key has them
    int gone = 0;                ///< numbers of no item in the tables
};

/// As many items as can find a key of a level at all: each key may have one of them already.
[[nodiscard]] qsizetype mostItems(const KeyGeometry& keyboard);

/// Row by row from the left, without fixed keys. An item is left out for a key only that keeps what it does.
[[nodiscard]] FillPlan planFill(KeyLevel& level, const FillWish& wish);

/// "12 keys, 3 of them in use. Left out: 2 on other keys of this level, 5 without room."
[[nodiscard]] QString planText(const FillPlan& plan);

/// The key after @p cell in reading order that is not fixed; nothing at the end of the keyboard.
[[nodiscard]] std::optional<KeyCell> keyAfter(const KeyGeometry& keyboard, KeyCell cell);

} // namespace norvane::keys
