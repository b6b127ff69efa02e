// The keys of all levels of a keyboard.
#pragma once

#include "keys/KeyPlaces.h"
#include "keys/layout/KeyLevel.h"

#include <QStringList>

#include <vector>

namespace norvane::keys
{

struct PlacedKey {
    KeyPlace place;
    KeyCell cell;
    Key key;
};

/// In the order of their levels and numbers, without fixed keys.
struct KeyboardKeys {
    std::vector<PlacedKey> keys;
    QStringList failures; ///< why the keys of a level are not among them
};

/// The keys of @p level as it is shown.
[[nodiscard]] std::vector<PlacedKey> keysOf(const KeyLevel& level);
/// Those of @p shown with its unsaved changes, of all other levels as they are stored.
[[nodiscard]] KeyboardKeys keysOfAllLevels(const KeyLevel& shown,
                                           const std::shared_ptr<store::Database>& database);

} // namespace norvane::keys
