// Reads texts with fields in them.
#pragma once

#include "reports/lines/TextTemplate.h"

namespace norvane::reports
{

/// A text with fields in braces; "{FIELD?words}" means the words if the field is not 0,
/// "{FIELD?zero;one;two}" those of its number; words may contain fields themselves.
/// "{FIELD:TABLE.NAME}" is the name in the record of TABLE whose number is the field. @throws FormulaError
[[nodiscard]] TextTemplate parseTemplate(QStringView text, const FieldSlots& fields);

} // namespace norvane::reports
