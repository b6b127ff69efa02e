// Numbers that a layout reckons from fields: "{PLUSALES.VALUE1} / {PLUSALES.COUNT1}".
#pragma once

#include "platform/Decimal.h"
#include "reports/FormulaTokens.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace norvane::reports
{

/// A place in the row of fields that a report reads, counted from 0.
using Slot = int;

/// What a layout lets an expression or a text read.
struct FieldSlots {
    const store::TableDefinition* own = nullptr; ///< the table of fields that are named without one
    /// Hands out a field's slot. @throws FormulaError with the column handed in when the report does not read
    /// such a field.
    std::function<Slot(const FieldName&, qsizetype column)> slotOf;
};

/// The numbers in the slots as exact decimals, of a line (or of a group's or the report's totals) and of the
/// whole report.
struct SlotNumbers {
    std::span<const std::string> here;
    std::span<const std::string> whole; ///< empty unless something asks for it
};

/// A parsed expression. Additions are exact; products and quotients have 17 digits at least.
class Expression
{
public:
    /// Nothing when it divides by zero. @throws RuntimeFailure 6 when the number has more than 18 digits
    /// before the point.
    [[nodiscard]] std::optional<Decimal> value(const SlotNumbers& numbers) const;
    /// Whether it asks for totals of the whole report.
    [[nodiscard]] bool needsWhole() const;
    /// Marks the slots that it reads.
    void markSlots(std::vector<bool>& slots) const;
    /// The slot of an expression that is nothing but a field.
    [[nodiscard]] std::optional<Slot> loneSlot() const;

private:
    friend class ExpressionParser;
    enum class Kind { Field, Number, Sum, Difference, Product, Quotient, Whole };

    [[nodiscard]] bool addTo(class ExactTotal& total, const SlotNumbers& numbers, bool negative) const;
    [[nodiscard]] std::optional<Decimal> quotient(const SlotNumbers& numbers) const;
    [[nodiscard]] std::optional<Decimal> exactSum(const SlotNumbers& numbers) const;

    Kind m_kind = Kind::Number;
    Slot m_slot = 0;
    Decimal m_number;
    std::vector<Expression> m_parts;
};

/// Fields in braces, numbers, + - * /, brackets, sum(a, b, {T.F1} to {T.F5}) over what it lists, and
/// total(x): x of the whole report.
/// @throws FormulaError
[[nodiscard]] Expression parseExpression(QStringView text, const FieldSlots& fields);

/// Expressions with commas between them, where "{T.F2} to {T.F5}" stands for the numbered fields from one to
/// the other.
/// @throws FormulaError
[[nodiscard]] std::vector<Expression> parseExpressions(QStringView text, const FieldSlots& fields);

} // namespace norvane::reports
