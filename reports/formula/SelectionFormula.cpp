// See SelectionFormula.h.
#include "reports/formula/SelectionFormula.h"

#include "reports/formula/FormulaTokens.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{
namespace
{

using store::FieldType;
using store::Value;

/// A comparison and its mirror image: 3 < x means x > 3.
struct Turned {
    QStringView symbol;
    const char* same;
    const char* turned;
};
constexpr std::array<Turned, 6> comparisons{{
    {u"=", "=", "="},
    {u"<>", "<>", "<>"},
    {u"<", "<", ">"},
    {u">", ">", "<"},
    {u"<=", "<=", ">="},
    {u">=", ">=", "<="},
}};

Condition joined(Condition::Kind kind, std::vector<Condition> parts)
{
    if (parts.size() == 1)
        return std::move(parts.front());
    Condition condition;
    condition.kind = kind;
    condition.parts = std::move(parts);
    return condition;
}

QString kindName(const FieldName& field)
{
    if (field.definition().type == FieldType::Date)
        return u"a day such as date(2026,1,31)"_s;
    return field.isNumber() || field.definition().type == FieldType::YesNo
               ? u"a number"_s
               : u"a text in quotes or a number"_s;
}

/// Registers' numbers of many digits are texts, so a text may be compared with a number.
bool fits(const FieldName& field, const Value& value)
{
    const auto type = field.definition().type;
    if (type == FieldType::Date || value.isDate())
        return type == FieldType::Date && value.isDate();
    return !value.isText() || field.isText();
}

class Parser
{
public:
    Parser(QStringView formula, QDate today, const store::TableDefinition* own)
        : m_tokens(formula, own), m_today(today)
    {
    }

    Condition whole()
    {
        if (m_tokens.current().kind == TokenKind::End)
            return {};
        auto condition = any();
        m_tokens.expectEnd();
        return condition;
    }

private:
    /// A side of a comparison.
    struct Side {
        std::optional<FieldName> field;
        Value value;
        qsizetype column = 1;
    };

    Condition any()
    {
        std::vector<Condition> parts;
        do {
            parts.push_back(all());
        } while (m_tokens.takeWord(u"or"));
        return joined(Condition::Kind::Any, std::move(parts));
    }

    Condition all()
    {
        std::vector<Condition> parts;
        do {
            parts.push_back(part());
        } while (m_tokens.takeWord(u"and"));
        return joined(Condition::Kind::All, std::move(parts));
    }

    Condition part()
    {
        const Nesting nesting(m_tokens);
        if (m_tokens.takeWord(u"not")) {
            Condition condition;
            condition.kind = Condition::Kind::Not;
            condition.parts.push_back(part());
            return condition;
        }
        if (m_tokens.takeSymbol(u"(")) {
            auto condition = any();
            m_tokens.expectSymbol(u")");
            return condition;
        }
        return test();
    }

    Condition test()
    {
        const auto left = side();
        if (left.field && m_tokens.takeWord(u"in"))
            return range(*left.field);
        const auto* const row = comparison();
        const auto right = side();
        if (left.field && right.field)
            return twoFields(*left.field, row->same, *right.field, right.column);
        if (!left.field && !right.field)
            throw FormulaError(left.column, u"a field is expected on one side of the comparison"_s);
        return left.field ? tested(*left.field, row->same, right) : tested(*right.field, row->turned, left);
    }

    const Turned* comparison()
    {
        for (const auto& row : comparisons) {
            if (m_tokens.takeSymbol(row.symbol))
                return &row;
        }
        m_tokens.failExpecting(u"a comparison such as = or \"in\""_s);
    }

    static Condition tested(const FieldName& field, const char* comparison, const Side& side)
    {
        if (!fits(field, side.value)) {
            throw FormulaError(side.column,
                               u"%1 is expected, since %2 is compared"_s.arg(kindName(field), field.text()));
        }
        Condition condition;
        condition.kind = Condition::Kind::Test;
        condition.field = field;
        condition.comparison = comparison;
        condition.value = side.value;
        return condition;
    }

    static Condition twoFields(const FieldName& field, const char* comparison, const FieldName& other,
                               qsizetype column)
    {
        const bool isDay = field.definition().type == FieldType::Date;
        if (isDay != (other.definition().type == FieldType::Date))
            throw FormulaError(column, u"a day and something else are compared"_s);
        Condition condition;
        condition.kind = Condition::Kind::TwoFields;
        condition.field = field;
        condition.comparison = comparison;
        condition.other = other;
        return condition;
    }

    Condition range(const FieldName& field)
    {
        if (m_tokens.current().kind == TokenKind::Word && !m_tokens.isWord(u"date"))
            return period(field);
        const auto from = side();
        if (!m_tokens.takeWord(u"to"))
            m_tokens.failExpecting(u"\"to\""_s);
        const auto to = side();
        for (const auto& end : {from, to}) {
            if (end.field)
                throw FormulaError(end.column, kindName(field) + u" is expected"_s);
        }
        return joined(Condition::Kind::All, {tested(field, ">=", from), tested(field, "<=", to)});
    }

    Condition period(const FieldName& field)
    {
        const FormulaToken word = m_tokens.current();
        if (!m_today.isValid())
            m_tokens.failExpecting(u"a range such as date(2026,1,1) to date(2026,1,31)"_s);
        const auto period = namedPeriod(word.text, m_today);
        if (!period)
            m_tokens.failExpecting(u"monthtodate, lastmonth or another period, or a range"_s);
        m_tokens.take();
        auto condition = joined(Condition::Kind::All,
                                {tested(field, ">=", {std::nullopt, Value::date(period->from), word.column}),
                                 tested(field, "<=", {std::nullopt, Value::date(period->to), word.column})});
        for (auto& part : condition.parts)
            part.periodName = period->name;
        return condition;
    }

    Side side()
    {
        const FormulaToken token = m_tokens.current();
        switch (token.kind) {
        case TokenKind::Field:
            return {m_tokens.takeField(), {}, token.column};
        case TokenKind::Text:
            m_tokens.take();
            return {std::nullopt, Value::text(token.text.toString()), token.column};
        case TokenKind::Word:
            return {std::nullopt, Value::date(day()), token.column};
        default:
            return {std::nullopt, number(), token.column};
        }
    }

    Value number()
    {
        const bool isNegative = m_tokens.takeSymbol(u"-");
        const FormulaToken token = m_tokens.current();
        if (token.kind != TokenKind::Number)
            m_tokens.failExpecting(u"a field, a number, a text or a day"_s);
        QString text = token.text.toString();
        if (isNegative)
            text.prepend(u'-');
        bool isWhole = false;
        const qlonglong whole = text.toLongLong(&isWhole);
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        if (!isNumber)
            m_tokens.failExpecting(u"a number"_s);
        m_tokens.take();
        return isWhole ? Value::whole(whole) : Value::number(number);
    }

    QDate day()
    {
        const FormulaToken word = m_tokens.current();
        if (!m_tokens.takeWord(u"date"))
            m_tokens.failExpecting(u"a field, a number, a text or a day"_s);
        m_tokens.expectSymbol(u"(");
        const int year = partOfDay();
        m_tokens.expectSymbol(u",");
        const int month = partOfDay();
        m_tokens.expectSymbol(u",");
        const QDate day(year, month, partOfDay());
        m_tokens.expectSymbol(u")");
        if (!day.isValid() || year < 1)
            throw FormulaError(word.column, u"there is no such day"_s);
        return day;
    }

    int partOfDay()
    {
        bool isWhole = false;
        const int number = m_tokens.current().text.toInt(&isWhole);
        if (m_tokens.current().kind != TokenKind::Number || !isWhole)
            m_tokens.failExpecting(u"a whole number"_s);
        m_tokens.take();
        return number;
    }

    FormulaTokens m_tokens;
    QDate m_today;
};

} // namespace

Condition parseSelection(QStringView formula, QDate today, const store::TableDefinition* own)
{
    return Parser(formula, today, own).whole();
}

} // namespace norvane::reports
