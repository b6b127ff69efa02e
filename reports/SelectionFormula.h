// Which rows a report shows: a formula such as "{PLUSALES.SALESDATE} in monthtodate".
#pragma once

#include "reports/FormulaTokens.h"
#include "reports/Period.h"
#include "store/Value.h"

#include <QDate>
#include <QStringList>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace norvane::reports
{

/// A parsed formula: tests of fields, joined by and, or and not.
struct Condition {
    enum class Kind {
        All,  ///< of the parts; of none: always true
        Any,  ///< of the parts
        Not,  ///< the one part
        Test, ///< a field against a value
        Twins ///< a field against another one
    };

    Kind kind = Kind::All;
    std::vector<Condition> parts;
    FieldName field;
    std::string comparison; ///< =, <>, <, >, <= or >=
    store::Value value;     ///< of the kind that the field is compared with
    FieldName other;        ///< of twins
    QString periodName;     ///< of days that a word names, such as "Month to date"

    [[nodiscard]] bool isAlwaysTrue() const { return kind == Kind::All && parts.empty(); }
};

/// Names without regard to case, =, <>, <, >, <=, >=, "in" with a period or with "x to y", and, or, not,
/// brackets, numbers, texts in quotes and date(y,m,d). Empty text gives a condition that is always true.
/// @param today on which the periods end. @param own the table of fields that are named without one.
/// @throws FormulaError
[[nodiscard]] Condition parseSelection(QStringView formula, QDate today,
                                       const store::TableDefinition* own = nullptr);

/// What is left of @p condition for a report that @p reads only some tables. A test of another table
/// restricts nothing; its table's name goes to @p others.
[[nodiscard]] Condition restrictedTo(const Condition& condition,
                                     const std::function<bool(const store::TableDefinition&)>& reads,
                                     QStringList& others);

/// The days that the condition asks of @p day, where every row must pass it.
/// @return nothing when it does not ask for days.
[[nodiscard]] std::optional<Period> periodOf(const Condition& condition, const FieldName& day);

/// Whether it asks for nothing but days of @p day, from one to another.
[[nodiscard]] bool isOnlyPeriod(const Condition& condition, const FieldName& day);

/// Whether a test is of a field for which @p isWanted.
[[nodiscard]] bool mentions(const Condition& condition,
                            const std::function<bool(const FieldName&)>& isWanted);

/// The condition as SQL with a question mark for each value; those go to the end of @p values. @p column
/// names a field in the statement.
[[nodiscard]] std::string conditionSql(const Condition& condition,
                                       const std::function<std::string(const FieldName&)>& column,
                                       std::vector<store::Value>& values);

} // namespace norvane::reports
