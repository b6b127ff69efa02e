// Whose database is open: after a change of customer it is still that of the previous customer.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"

namespace norvane::customers
{

/// The customer whose database is open, with name, folder and database. The chosen customer itself, except
/// between a change of customer and the next opening of a key editor.
[[nodiscard]] ApplicationValues ownerOfData(const ApplicationValues& values);

/// Whether the open database belongs to another customer than the chosen one.
[[nodiscard]] bool isDataOfAnother(const ApplicationValues& values);

/// " of CORNER SHOP", the chosen customer, when the open database belongs to another; otherwise empty.
[[nodiscard]] QString ofChosenCustomer(const ApplicationValues& values);

/// To be called before work on the open database. If it belongs to another customer, asks with the names of
/// both. @param consequence says what the work would do, with %1 for the customer whose database is open and
/// %2 for the chosen one. @return whether the work may start.
[[nodiscard]] bool mayUseOpenData(const ApplicationValues& values, Boxes& boxes, const QString& consequence);

} // namespace norvane::customers
