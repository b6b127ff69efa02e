// What a selection formula asks for, and its part that a statement can test.
#pragma once

#include "reports/formula/FieldName.h"
#include "reports/formula/Period.h"
#include "store/engine/Value.h"

#include <QString>
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
        All,       ///< all parts; without parts: always true
        Any,       ///< of the parts
        Not,       ///< the one part
        Test,      ///< a field against a value
        TwoFields, ///< a field against another one
        Nothing    ///< a field that names no record: null, 0, blank or zeros alone
    };

    Kind kind = Kind::All;
    std::vector<Condition> parts;
    FieldName field;
    std::string comparison; ///< =, <>, <, >, <= or >=
    store::Value value;     ///< what a Test compares the field with
    FieldName other;        ///< of TwoFields: the second field
    QString periodName;     ///< "Month to date" for a test that comes from a named period

    [[nodiscard]] bool isAlwaysTrue() const { return kind == Kind::All && parts.empty(); }
};

/// The part of @p condition that a report can test which @p reads only some tables. A test of any other table
/// restricts nothing: rows that might pass it are kept. The names of such tables are added to @p others.
[[nodiscard]] Condition restrictedTo(const Condition& condition,
                                     const std::function<bool(const store::TableDefinition&)>& reads,
                                     QStringList& others);

/// The days to which @p condition restricts the field @p day.
/// @return nothing when it does not restrict the days of every row.
[[nodiscard]] std::optional<Period> periodOf(const Condition& condition, const FieldName& day);

/// Whether @p condition restricts nothing but the days of the field @p day, to one range.
[[nodiscard]] bool isOnlyPeriod(const Condition& condition, const FieldName& day);

/// Whether any test names a field for which @p isWanted is true.
[[nodiscard]] bool mentions(const Condition& condition,
                            const std::function<bool(const FieldName&)>& isWanted);

/// True for a row in which @p column, that of @p field, names no record. It is never null.
[[nodiscard]] std::string namesNothingSql(const FieldName& field, const std::string& column);

/// The condition as SQL with a question mark for each value. The values are added to @p values, in that
/// order. @param column gives the name of a field in the statement.
[[nodiscard]] std::string conditionSql(const Condition& condition,
                                       const std::function<std::string(const FieldName&)>& column,
                                       std::vector<store::Value>& values);

} // namespace norvane::reports
