// What the controls of a screen file must keep to: the fields of the tables and the columns of the registers.
#pragma once

#include "platform/Decimal.h"
#include "screens/ScreenDefinition.h"
#include "store/Definitions.h"

namespace norvane::screens
{

/// Whether @p name is a word of @p list. A word that ends in "*" stands for all names that begin so.
[[nodiscard]] bool isListed(const char* list, const QString& name);

/// Prices are numbers held as text.
[[nodiscard]] bool isPrice(const store::FieldDefinition& field);

/// Whether @p control shows and stores what @p field holds.
[[nodiscard]] bool canHold(const ControlDefinition& control, const store::FieldDefinition& field);

/// What Maxvalue of @p control must be for the column of a register file that sends its field: the largest
/// number, or the most characters. 0 where no column's width says it.
[[nodiscard]] Decimal largestOf(const ControlDefinition& control, const QString& table);

/// Whether @p screen, a file, leaves the field out on purpose.
[[nodiscard]] bool isLeftOut(const QString& screen, const QString& table, const QString& field);

/// Whether an upload may leave the field empty, which a box for whole numbers cannot show.
[[nodiscard]] bool mayBeEmpty(const QString& table, const QString& field);

} // namespace norvane::screens
