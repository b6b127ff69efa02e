// Texts made of a line's fields.
#pragma once

#include "reports/lines/ReportLayout.h"

namespace norvane::reports
{

/// The fields of a line, by slot.
using LineFields = std::vector<store::Value>;

/// Puts the fields into the text. When all of them are empty, the layout's text for a missing record is used.
[[nodiscard]] QString textOf(const FieldText& text, const LineFields& fields);
[[nodiscard]] QString textOf(const TextTemplate& text, const CellFormat& format, const LineFields& fields);

/// Whether a value names no record: null, 0 or blank.
[[nodiscard]] bool namesNothing(const store::Value& value);

} // namespace norvane::reports
