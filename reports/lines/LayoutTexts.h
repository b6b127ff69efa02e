// Reads the values of layout files that name fields, and checks which fields a report may name.
#pragma once

#include "reports/lines/ReportLayout.h"

namespace norvane::reports
{

/// Fields with commas between them. @throws FormulaError
[[nodiscard]] std::vector<FieldName> parseFields(QStringView text, const store::TableDefinition* own);

/// A field, alone or followed by the words "by value" or "descending". @return nothing for other words.
/// @throws FormulaError
[[nodiscard]] std::optional<SortKey> parseSortKey(QStringView text, const store::TableDefinition* own);

/// A text with fields in braces; "{FIELD?words}" means the words if the field is not 0,
/// "{FIELD?zero;one;two}" those of its number; words may contain fields themselves.
/// "{FIELD:TABLE.NAME}" is the name in the record of TABLE whose number is the field. @throws FormulaError
[[nodiscard]] TextTemplate parseTemplate(QStringView text, const FieldSlots& fields);

/// @throws FormulaError for a field that @p source cannot hand out: one of a table that is not read, or one
/// that is neither the same in all rows of a line nor a number to be added up.
void checkField(const ReportLayout& layout, const LineSource& source, const FieldName& field,
                qsizetype column);

/// Gives each field that is named a slot in @p source, after checkField().
[[nodiscard]] FieldSlots fieldSlots(ReportLayout& layout, LineSource& source);

} // namespace norvane::reports
