// Values of former fields as the fields of our catalogue hold them.
#pragma once

#include "former/FormerReader.h"
#include "store/engine/Definitions.h"
#include "store/engine/Value.h"

#include <string_view>

namespace norvane::former
{

/// What a field loses of a value that it cannot hold.
enum class Loss {
    None,
    Cut,     ///< a text is longer than the field: its end; a date has a time of day: the time
    Emptied, ///< all of it: a number is too large or not exact, a text is not a number, a picture
};

/// Sets @p value to what @p field of @p table holds of @p raw, a value as norvane-former writes it. Currency,
/// numeric and whole numbers keep every digit; a binary number becomes digits or text only where it is exact.
/// @return what is lost; the value is then the part that fits, or null.
[[nodiscard]] Loss convertValue(store::Value& value, std::string_view raw, FieldKind kind,
                                const store::FieldDefinition& field, const QString& table);

/// Whether a record without a value in @p field cannot be stored.
[[nodiscard]] bool mayNotBeEmpty(const store::FieldDefinition& field);

/// The raw value as a user reads it, for messages.
[[nodiscard]] QString shownValue(std::string_view raw);

} // namespace norvane::former
