// A keyboard level of the customer's programme as texts of an overlay.
#pragma once

#include "overlay/Document.h"
#include "overlay/LevelKey.h"

#include <vector>

namespace norvane::overlay
{

/// Levels of a keyboard's programme, numbered from 1.
inline constexpr int overlayLevels = 5;

/// Sets the text of each key of @p document to its function on @p level, 1 to 5, of the programme in @p
/// databasePath. Colours and fonts are kept. So are the texts of the keys that are fixed on the register,
/// which have no row in the tables, and those of the numeric keys, which have one.
/// @throws RuntimeFailure with Failure::NoCurrentRecord if the tables have too few rows, Failure::Conversion
/// if a key's function is not a number, and as opening a database. The keys filled before remain filled.
void importdata(Document& document, int level, const QString& databasePath);

/// What the keys of @p keyboard do on @p level; entry n is that of key n of its layout.
/// @throws RuntimeFailure as importdata() does.
[[nodiscard]] std::vector<LevelKey> keysOfLevel(Keyboard keyboard, int level, const QString& databasePath);

} // namespace norvane::overlay
