// A keyboard level of the customer's programme as texts of an overlay.
#pragma once

#include "overlay/Document.h"

namespace norvane::overlay
{

/// Gives each key of @p document the text of what it does on @p level, 1 to 5, of the programme in
/// @p databasePath. Colours and fonts stay. So do the texts of the keys that are fixed on the register, which
/// have no row in the tables, and those of the numeric keys, which have one.
/// @throws RuntimeFailure 3021 when the tables have too few rows, 3421 when a key's function is no number,
/// and what opening a database throws. The keys filled by then stay filled.
void importdata(Document& document, int level, const QString& databasePath);

} // namespace norvane::overlay
