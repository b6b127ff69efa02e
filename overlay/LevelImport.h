// A keyboard level of the customer's programme as texts of an overlay.
#pragma once

#include "overlay/Document.h"

namespace norvane::overlay
{

/// Sets the text of each key of @p document to its function on @p level, 1 to 5, of the programme in @p
/// databasePath. Colours and fonts are kept. So are the texts of the keys that are fixed on the register,
/// which have no row in the tables, and those of the numeric keys, which have one.
/// @throws RuntimeFailure with Failure::NoCurrentRecord if the tables have too few rows, Failure::Conversion
/// if a key's function is not a number, and as opening a database. The keys filled before remain filled.
void importdata(Document& document, int level, const QString& databasePath);

} // namespace norvane::overlay
