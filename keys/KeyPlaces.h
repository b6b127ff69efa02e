// Finds the keys of an item on a customer's keyboards.
#pragma once

#include "keys/KeyGeometry.h"
#include "store/engine/Database.h"

#include <QString>

#include <vector>

namespace norvane::keys
{

/// A key by its level and its number in the level, both from 1.
struct KeyPlace {
    int level = 0;
    int key = 0;
    bool operator==(const KeyPlace&) const = default;
};

/// The matching keys in the current tables, in the order of the levels.
/// @param link the value of KEYLINK: pluLink, lookUpLink, or the id of a function key
/// @param number the start of field nlu; empty for all keys of this link
[[nodiscard]] std::vector<KeyPlace> findKeys(store::Database& database, const KeyGeometry& keyboard,
                                             const QString& link, const QString& number);

/// "Level 1 key 117, Level 3 keys 117, 118"; empty for no keys.
[[nodiscard]] QString placesText(const std::vector<KeyPlace>& places);

} // namespace norvane::keys
