// Parser and arithmetic of expressions; see Expression.h.
#include "reports/formula/Expression.h"

#include "platform/DecimalTotal.h"
#include "reports/formula/ExactNumbers.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{

/// Adds up decimals that are given as texts; those that are subtracted are added with the other sign.
class ExactTotal
{
public:
    void add(std::string_view number, bool negative)
    {
        if (number == "0")
            return; // most fields of most lines are zero
        if (!negative) {
            m_total.add(number);
        } else if (number.starts_with('-')) {
            m_total.add(number.substr(1));
        } else {
            m_total.add(std::string_view('-' + std::string(number)));
        }
    }
    [[nodiscard]] std::string text() const { return m_total.text(); }

private:
    DecimalTotal m_total;
};

namespace
{

constexpr int quotientDigits = 17;
constexpr int minutesOfHour = 60;
constexpr int minutesOfDay = 24 * minutesOfHour;

/// Of a time as registers write it: 930 is 9:30.
std::optional<int> minutesOf(const std::optional<Decimal>& time)
{
    constexpr std::int64_t hundred = 100;
    const std::int64_t digits = time ? time->toWhole() : -1;
    if (digits < 0 || digits % hundred >= minutesOfHour || digits > minutesOfDay / minutesOfHour * hundred)
        return std::nullopt;
    return static_cast<int>(digits / hundred * minutesOfHour + digits % hundred);
}

} // namespace

/// Parses by recursive descent: a sum is made of products, a product of parts.
class ExpressionParser
{
public:
    ExpressionParser(QStringView text, const FieldSlots& fields)
        : m_tokens(text, fields.own), m_fields(fields)
    {
    }

    Expression whole()
    {
        auto expression = sum();
        m_tokens.expectEnd();
        return expression;
    }

    std::vector<Expression> wholeList()
    {
        auto expressions = list();
        m_tokens.expectEnd();
        return expressions;
    }

private:
    using Kind = Expression::Kind;

    static Expression made(Kind kind, std::vector<Expression> parts)
    {
        Expression expression;
        expression.m_kind = kind;
        expression.m_parts = std::move(parts);
        return expression;
    }
    static Expression pair(Kind kind, Expression left, Expression right)
    {
        std::vector<Expression> parts;
        parts.push_back(std::move(left));
        parts.push_back(std::move(right));
        return made(kind, std::move(parts));
    }
    Expression ofField(const FieldName& field, qsizetype column)
    {
        Expression expression;
        expression.m_kind = Kind::Field;
        expression.m_slot = m_fields.slotOf(field, column);
        return expression;
    }

    Expression sum()
    {
        auto left = product();
        for (;;) {
            if (m_tokens.takeSymbol(u"+")) {
                left = pair(Kind::Sum, std::move(left), product());
            } else if (m_tokens.takeSymbol(u"-")) {
                left = pair(Kind::Difference, std::move(left), product());
            } else {
                return left;
            }
        }
    }

    Expression product()
    {
        auto left = part();
        for (;;) {
            if (m_tokens.takeSymbol(u"*")) {
                left = pair(Kind::Product, std::move(left), part());
            } else if (m_tokens.takeSymbol(u"/")) {
                left = pair(Kind::Quotient, std::move(left), part());
            } else {
                return left;
            }
        }
    }

    Expression part()
    {
        const Nesting nesting(m_tokens);
        if (m_tokens.takeSymbol(u"-"))
            return pair(Kind::Difference, Expression(), part());
        if (m_tokens.takeSymbol(u"("))
            return closed(sum());
        if (m_tokens.takeWord(u"sum")) {
            m_tokens.expectSymbol(u"(");
            return closed(made(Kind::Sum, list()));
        }
        if (m_tokens.takeWord(u"total")) {
            m_tokens.expectSymbol(u"(");
            std::vector<Expression> parts;
            parts.push_back(sum());
            return closed(made(Kind::Whole, std::move(parts)));
        }
        if (m_tokens.takeWord(u"hours"))
            return hours();
        if (m_tokens.takeWord(u"days")) {
            m_tokens.expectSymbol(u"(");
            return closed(made(Kind::Days, {}));
        }
        return m_tokens.current().kind == TokenKind::Number ? number() : field();
    }

    Expression hours()
    {
        m_tokens.expectSymbol(u"(");
        auto from = sum();
        m_tokens.expectSymbol(u",");
        return closed(pair(Kind::Hours, std::move(from), sum()));
    }

    Expression closed(Expression expression)
    {
        m_tokens.expectSymbol(u")");
        return expression;
    }

    Expression number()
    {
        const FormulaToken token = m_tokens.current();
        const auto value = Decimal::plain(token.text.toString().toStdString());
        if (!value)
            m_tokens.failExpecting(u"a number of at most 18 digits"_s);
        m_tokens.take();
        Expression expression;
        expression.m_number = *value;
        return expression;
    }

    Expression field()
    {
        if (m_tokens.current().kind != TokenKind::Field)
            m_tokens.failExpecting(u"a field, a number or a bracket"_s);
        const qsizetype column = m_tokens.current().column;
        return ofField(m_tokens.takeField(), column);
    }

    std::vector<Expression> list()
    {
        std::vector<Expression> expressions;
        do {
            listPart(expressions);
        } while (m_tokens.takeSymbol(u","));
        return expressions;
    }

    void listPart(std::vector<Expression>& expressions)
    {
        const FormulaToken first = m_tokens.current();
        expressions.push_back(sum());
        if (!m_tokens.takeWord(u"to"))
            return;
        const qsizetype column = m_tokens.current().column;
        const auto last = m_tokens.takeField();
        const auto from = first.kind == TokenKind::Field ? findField(first.text, m_fields.own) : std::nullopt;
        if (!expressions.back().loneSlot() || !from)
            throw FormulaError(first.column, u"a field is expected before \"to\""_s);
        addNumbered(expressions, *from, last, column);
    }

    /// Adds the fields numbered after @p from up to @p last: after COUNT1, these are COUNT2, COUNT3 ...
    void addNumbered(std::vector<Expression>& expressions, const FieldName& from, const FieldName& last,
                     qsizetype column)
    {
        const auto digit = [](const FieldName& field) {
            return field.name().back().digitValue();
        };
        const bool fit = from.table == last.table && digit(from) >= 0 && digit(from) <= digit(last) &&
                         from.name().chopped(1).compare(last.name().chopped(1), Qt::CaseInsensitive) == 0;
        if (!fit)
            throw FormulaError(column, u"a field numbered higher than %1 is expected"_s.arg(from.text()));
        for (int number = digit(from) + 1; number <= digit(last); ++number) {
            const QString name = from.table->name + u'.' + from.name().chopped(1) + QString::number(number);
            if (const auto next = findField(name))
                expressions.push_back(ofField(*next, column));
        }
    }

    FormulaTokens m_tokens;
    const FieldSlots& m_fields;
};

std::optional<Slot> Expression::loneSlot() const
{
    return m_kind == Kind::Field ? std::optional(m_slot) : std::nullopt;
}

void Expression::markSlots(std::vector<bool>& slots) const
{
    if (m_kind == Kind::Field)
        slots[static_cast<std::size_t>(m_slot)] = true;
    for (const auto& part : m_parts)
        part.markSlots(slots);
}

bool Expression::needsWhole() const
{
    return m_kind == Kind::Whole ||
           std::ranges::any_of(m_parts, [](const Expression& part) { return part.needsWhole(); });
}

bool Expression::addsUp() const
{
    if (m_kind == Kind::Number)
        return m_number == Decimal();
    return m_kind == Kind::Field ||
           ((m_kind == Kind::Sum || m_kind == Kind::Difference) &&
            std::ranges::all_of(m_parts, [](const Expression& part) { return part.addsUp(); }));
}

std::optional<Decimal> Expression::value(const SlotNumbers& numbers) const
{
    switch (m_kind) {
    case Kind::Field: {
        const auto& number = numbers.here[static_cast<std::size_t>(m_slot)];
        return number == "0" ? Decimal() : decimalOf(number);
    }
    case Kind::Number:
        return m_number;
    case Kind::Sum:
    case Kind::Difference: {
        const auto sum = exactValue(numbers);
        return sum ? std::optional(decimalOf(*sum)) : std::nullopt;
    }
    case Kind::Product:
    case Kind::Quotient:
        return quotient(numbers);
    case Kind::Whole:
        return m_parts.front().value({numbers.whole, numbers.whole, numbers.days});
    case Kind::Hours:
        return hours(numbers);
    case Kind::Days:
        return Decimal(numbers.days, 0);
    }
    return std::nullopt;
}

std::optional<std::string> Expression::exactValue(const SlotNumbers& numbers) const
{
    ExactTotal total;
    if (!addTo(total, numbers, false))
        return std::nullopt;
    return total.text();
}

/// @return false if a part has no value.
bool Expression::addTo(ExactTotal& total, const SlotNumbers& numbers, bool negative) const
{
    if (m_kind == Kind::Field) {
        total.add(numbers.here[static_cast<std::size_t>(m_slot)], negative);
        return true;
    }
    if (m_kind == Kind::Sum || m_kind == Kind::Difference) {
        for (const auto& part : m_parts) {
            const bool isTaken = m_kind == Kind::Difference && &part != &m_parts.front();
            if (!part.addTo(total, numbers, negative != isTaken))
                return false;
        }
        return true;
    }
    const auto number = value(numbers);
    if (number)
        total.add(number->text(), negative);
    return number.has_value();
}

std::optional<Decimal> Expression::quotient(const SlotNumbers& numbers) const
{
    const auto left = m_parts.front().value(numbers);
    const auto right = m_parts.back().value(numbers);
    if (!left || !right)
        return std::nullopt;
    if (m_kind == Kind::Product)
        return left->times(*right);
    if (*right == Decimal())
        return std::nullopt;
    return left->dividedBy(*right, quotientDigits);
}

/// A period that ends before it begins is over midnight, and one that ends with the minute 59 is a whole
/// hour: 22:00 to 01:59 are four. @return nothing for what is not a time, and where both are the same, as in
/// a record that is not set.
std::optional<Decimal> Expression::hours(const SlotNumbers& numbers) const
{
    const auto from = minutesOf(m_parts.front().value(numbers));
    const auto to = minutesOf(m_parts.back().value(numbers));
    if (!from || !to || *from == *to)
        return std::nullopt;
    const int end = *to % minutesOfHour == minutesOfHour - 1 ? *to + 1 : *to;
    const int minutes = end > *from ? end - *from : end - *from + minutesOfDay;
    return Decimal(minutes, 0).dividedBy(Decimal(minutesOfHour, 0), quotientDigits);
}

Expression parseExpression(QStringView text, const FieldSlots& fields)
{
    return ExpressionParser(text, fields).whole();
}

std::vector<Expression> parseExpressions(QStringView text, const FieldSlots& fields)
{
    return ExpressionParser(text, fields).wholeList();
}

} // namespace norvane::reports
