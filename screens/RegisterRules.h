// What registers ask of a field beyond what a screen file can say.
#pragma once

#include "base/ApplicationValues.h"
#include "screens/ScreenDefinition.h"

namespace norvane::screens
{

/// Restricts the input of @p control, whose field is one of @p table, to values that the customer's registers
/// accept: hexadecimal digits in a key, a message line as wide as the model's printer, a time of the day, no
/// card options on the model without cards. Controls of other fields remain as described in the file.
/// @throws RuntimeFailure with Failure::TypeMismatch if this depends on a model that is not in the settings.
void fitToRegister(ControlDefinition& control, const QString& table, const ApplicationValues& values);

/// Whether @p number is above what registers take in @p field; fields that are not prices have no limit here.
[[nodiscard]] bool isAboveLargest(const Decimal& number, const QString& field);

} // namespace norvane::screens
