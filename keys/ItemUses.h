// Where a function key or a window look-up is used, in words.
#pragma once

#include "keys/KeyGeometry.h"
#include "keys/KeyItems.h"

#include <QStringList>

namespace norvane::store
{
class Database;
}

namespace norvane::keys
{

/// The keys of all levels that hold the item, then the look-ups: for a function those with it on a line, for
/// a look-up those that open it next. "Keyboard level 2, key 37", "Window look-up 3 "Milk", line 2". Number 0
/// means "none" everywhere, so it has no uses.
/// @param number of a function or look-up.
/// @throws RuntimeFailure as BoundQuery.
[[nodiscard]] QStringList usesOfItem(store::Database& database, const KeyGeometry& keyboard, ItemKind kind,
                                     const QString& number);

} // namespace norvane::keys
