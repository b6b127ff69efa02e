// Whose database is open: after a change of customer it is still that of the customer before.
#pragma once

#include "base/ApplicationValues.h"

namespace norvane::customers
{

/// The customer whose database is open, with name, folder and database. The chosen customer itself, except
/// between a change of customer and the next opening of a key editor.
[[nodiscard]] ApplicationValues ownerOfData(const ApplicationValues& values);

/// Whether the open database belongs to another customer than the chosen one.
[[nodiscard]] bool isDataOfAnother(const ApplicationValues& values);

} // namespace norvane::customers
