// Converts the value of a field to the content of the control that is bound to it, and back.
#pragma once

#include "screens/RecordEditor.h"

namespace norvane::screens
{

/// The content of @p field's control for @p value. @throws RuntimeFailure with Failure::TypeMismatch for null
/// in a whole-number box.
[[nodiscard]] store::Value shownValue(const BoundField& field, const store::Value& value);
/// What a control of @p kind shows of a new record.
[[nodiscard]] store::Value blankValue(ControlKind kind);
/// What a save stores of @p field into @p definition.
[[nodiscard]] store::Value valueToStore(const BoundField& field, const store::FieldDefinition& definition);

} // namespace norvane::screens
