// What two levels of a keyboard differ in.
#pragma once

#include "keys/layout/KeyLevel.h"

#include <vector>

namespace norvane::keys
{

/// A key that does not do the same on both levels.
struct KeyDifference {
    int number = 0; ///< of the key in its level, from 1
    KeyCell cell;
    Key left;
    Key right;
};

/// In the order of the keys. Both levels are of the same keyboard.
[[nodiscard]] std::vector<KeyDifference> differencesOf(const KeyLevel& left, const KeyLevel& right);

} // namespace norvane::keys
