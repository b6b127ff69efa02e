// Reads the fields that a layout names, and checks which ones it may name.
#pragma once

#include "reports/lines/ReportLayout.h"

namespace norvane::reports
{

/// Fields with commas between them. @throws FormulaError
[[nodiscard]] std::vector<FieldName> parseFields(QStringView text, const store::TableDefinition* own);

/// A field, alone or followed by the words "by value" or "descending". @return nothing for other words.
/// @throws FormulaError
[[nodiscard]] std::optional<SortKey> parseSortKey(QStringView text, const store::TableDefinition* own);

/// Follows the joins back to the field of the report's own table by which the record of @p field is found.
[[nodiscard]] FieldName rootOf(const ReportLayout& layout, FieldName field);

/// @throws FormulaError for a field that @p source cannot provide: one of a table that is not read, or one
/// that is neither the same in all rows of a line nor a number to be added up.
void checkField(const ReportLayout& layout, const LineSource& source, const FieldName& field,
                qsizetype column);

/// Gives each field that is named a slot in @p source, after checkField().
[[nodiscard]] FieldSlots fieldSlots(ReportLayout& layout, LineSource& source);

} // namespace norvane::reports
