// Which rows a report shows: a formula such as "{PLUSALES.SALESDATE} in monthtodate".
#pragma once

#include "reports/formula/Condition.h"

#include <QDate>

namespace norvane::reports
{

/// Reads names without regard to case, =, <>, <, >, <=, >=, "in" with a period or with "x to y", and, or,
/// not, brackets, numbers, texts in quotes and date(y,m,d). An empty formula gives a condition that is always
/// true.
/// @param today on which the periods end; an invalid date where no period may be named. @param own the table
/// of fields that are named without one.
/// @throws FormulaError
[[nodiscard]] Condition parseSelection(QStringView formula, QDate today,
                                       const store::TableDefinition* own = nullptr);

} // namespace norvane::reports
