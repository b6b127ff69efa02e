// How a value becomes what a field of a given type holds, and what a key of an index is sought as.
#pragma once

#include "store/engine/Definitions.h"
#include "store/engine/Value.h"

#include <QDate>

#include <string_view>

namespace norvane::store
{

/// Converts @p value to the type of @p field, as storing does. Null remains null, and a text of blanks only
/// becomes null in every field but a text field: a register fills unused columns with spaces. Whole numbers
/// round halves to the even neighbour. @p table is named in failures.
/// @throws RuntimeFailure with Failure::Conversion if the value does not convert, Failure::TextTooLong if a
/// text is too long.
void convertToField(Value& value, const FieldDefinition& field, const QString& table);

/// A key as an index over @p field compares it: a fraction sought among whole numbers is not rounded. A text
/// of blanks only, sought among numbers or dates, converts to null, which sorts before every key.
/// @throws RuntimeFailure with Failure::Conversion if the key does not convert.
[[nodiscard]] Value indexKey(const Value& key, const FieldDefinition& field, const QString& table);

/// The order of two digit texts by value: less than, equal to or greater than 0. Leading zeros do not count.
[[nodiscard]] int compareDigits(std::string_view left, std::string_view right);

/// The day that dd/mm/yyyy, d/m/yyyy or yyyy-mm-dd names (blanks around it allowed); invalid for other texts.
[[nodiscard]] QDate dateOfText(std::string_view text);

} // namespace norvane::store
