// Restores a customer from a safety copy, with the question before and the report after it.
#pragma once

#include "base/ApplicationValues.h"
#include "customers/SafetyCopies.h"
#include "platform/Boxes.h"

namespace norvane::shell
{

/// Title of the window and of all boxes about safety copies.
inline constexpr QLatin1StringView copiesTitle{"Safety Copies"};

/// When and why it was made, for the user.
[[nodiscard]] QString copyInWords(const customers::SafetyCopy& copy);

/// Asks, restores the customer that @p values name and reports what was done or why not.
void restoreAfterQuestion(const ApplicationValues& values, const customers::SafetyCopy& copy, Boxes& boxes);

} // namespace norvane::shell
