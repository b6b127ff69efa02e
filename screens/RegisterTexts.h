// What registers ask of a field beyond what a screen file can say.
#pragma once

#include "base/ApplicationValues.h"
#include "screens/ScreenDefinition.h"

namespace norvane::screens
{

/// Narrows what can be entered into @p control, whose field is one of @p table, to what the customer's
/// registers take: hexadecimal digits in a key, a message line as wide as the model's printer, a time of the
/// day, no card options on the model without cards. Controls of other fields stay as the file describes them.
/// @throws RuntimeFailure 13 when this depends on a model that the settings do not give.
void fitToRegister(ControlDefinition& control, const QString& table, const ApplicationValues& values);

/// Whether @p number is above what registers take in @p field; fields that are no prices have no limit here.
[[nodiscard]] bool isAboveLargest(const Decimal& number, const QString& field);

} // namespace norvane::screens
