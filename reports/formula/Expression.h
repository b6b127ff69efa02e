// Numbers that a layout calculates from fields: "{PLUSALES.VALUE1} / {PLUSALES.COUNT1}".
#pragma once

#include "platform/Decimal.h"
#include "reports/formula/FormulaTokens.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace norvane::reports
{

struct NameList;

/// A place in the row of fields that a report reads, counted from 0.
using Slot = int;

/// What a layout lets an expression or a text read.
struct FieldSlots {
    const store::TableDefinition* own = nullptr; ///< the table of fields that are named without one
    /// Returns a field's slot. @throws FormulaError with the given column if the report does not read such a
    /// field.
    std::function<Slot(const FieldName&, qsizetype column)> slotOf;
    /// Returns the list of names of a field of another table. @throws FormulaError likewise if its records
    /// have no number.
    std::function<std::shared_ptr<const NameList>(const FieldName&, qsizetype column)> namesOf = {};
};

/// The numbers that an expression is calculated from: one exact decimal for each slot.
struct SlotNumbers {
    std::span<const std::string> here;  ///< of one line, or totals of a group or of the report
    std::span<const std::string> whole; ///< totals of the whole report; empty unless an expression uses them
    int days = 0;                       ///< of the period with a collection; 0 if they are not counted
};

/// A parsed expression. Additions are exact; products and quotients have 17 digits at least.
class Expression
{
public:
    /// @return nothing if it divides by zero. @throws RuntimeFailure with Failure::Overflow if the number has
    /// more than 18 digits before the point.
    [[nodiscard]] std::optional<Decimal> value(const SlotNumbers& numbers) const;
    /// Likewise with all digits, however many a sum has. Only products and quotients have the limit of
    /// value().
    [[nodiscard]] std::optional<std::string> exactValue(const SlotNumbers& numbers) const;
    /// Whether it uses totals of the whole report.
    [[nodiscard]] bool needsWhole() const;
    /// Whether its value for several lines together is the sum of its values for each.
    [[nodiscard]] bool addsUp() const;
    /// Marks the slots that it reads.
    void markSlots(std::vector<bool>& slots) const;
    /// The slot of an expression that is only a field.
    [[nodiscard]] std::optional<Slot> loneSlot() const;

private:
    friend class ExpressionParser;
    enum class Kind { Field, Number, Sum, Difference, Product, Quotient, Whole, Hours, Days };

    [[nodiscard]] bool addTo(class ExactTotal& total, const SlotNumbers& numbers, bool negative) const;
    [[nodiscard]] std::optional<Decimal> quotient(const SlotNumbers& numbers) const;
    [[nodiscard]] std::optional<Decimal> hours(const SlotNumbers& numbers) const;

    Kind m_kind = Kind::Number;
    Slot m_slot = 0;
    Decimal m_number;
    std::vector<Expression> m_parts;
};

/// Reads fields in braces, numbers, + - * /, brackets, sum(a, b, {T.F1} to {T.F5}) over all that it lists,
/// total(x): the value of x over the whole report, hours(a, b): the hours from one time of day to another,
/// and days(): the days of the period with a collection.
/// @throws FormulaError
[[nodiscard]] Expression parseExpression(QStringView text, const FieldSlots& fields);

/// Reads expressions with commas between them. "{T.F2} to {T.F5}" means the numbered fields from the first to
/// the last.
/// @throws FormulaError
[[nodiscard]] std::vector<Expression> parseExpressions(QStringView text, const FieldSlots& fields);

} // namespace norvane::reports
