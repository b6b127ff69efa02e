// What a user enters for a column, checked by the rules of the screen's control.
#pragma once

#include "screens/table/TableColumns.h"

#include <QString>

#include <optional>

namespace norvane::screens
{

/// The value that would be stored, or why there is none.
struct CellInput {
    std::optional<store::Value> value;
    QString refusal; ///< in words that follow the input: "is more than 9999"
};

/// Reads @p text, typed or pasted, for @p column: numbers with a point or a comma, entries of a list by
/// number or by name, "Yes" and "No". A number left empty is 0, as in the box on the screen.
[[nodiscard]] CellInput cellInput(const TableColumn& column, const QString& text);

/// The same for a number that was computed.
[[nodiscard]] CellInput cellInput(const TableColumn& column, const Decimal& number);

} // namespace norvane::screens
