// What restoring a safety copy would change in a customer's programme.
#pragma once

#include "base/ApplicationValues.h"
#include "customers/SafetyCopies.h"
#include "platform/KeepGoing.h"

#include <QStringList>

namespace norvane::programme
{

/// A line for each table that is different: "PLUDATA: 2 new, 1 changed, 0 gone", new being what only the copy
/// has; and one for different settings. Empty if nothing is different. Points and sales are not compared.
/// @param values name the customer and its folder
/// @throws RuntimeFailure as either database reports, with Failure::UserInterrupt when @p keepGoing returns
/// false.
[[nodiscard]] QStringList copyDifferences(const ApplicationValues& values, const customers::SafetyCopy& copy,
                                          const KeepGoing& keepGoing = {});

} // namespace norvane::programme
