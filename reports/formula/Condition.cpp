// See Condition.h.
#include "reports/formula/Condition.h"

#include <algorithm>
#include <span>

namespace norvane::reports
{
namespace
{

using store::FieldType;

using Reads = std::function<bool(const store::TableDefinition&)>;
using ColumnOf = std::function<std::string(const FieldName&)>;

bool isTest(const Condition& condition)
{
    using Kind = Condition::Kind;
    return condition.kind == Kind::Test || condition.kind == Kind::TwoFields ||
           condition.kind == Kind::Nothing;
}

/// Whether all fields of a test can be read; a table that cannot is added to @p others.
bool canTest(const Condition& test, const Reads& reads, QStringList& others)
{
    for (const auto* const table : {test.field.table, test.other.table}) {
        if (!table || reads(*table))
            continue;
        if (!others.contains(table->name))
            others.append(table->name);
        return false;
    }
    return true;
}

/// @param isNegated whether the condition follows a "not". @return nothing if it restricts nothing.
std::optional<Condition> restricted(const Condition& condition, const Reads& reads, QStringList& others,
                                    bool isNegated = false)
{
    using Kind = Condition::Kind;
    if (isTest(condition))
        return canTest(condition, reads, others) ? std::optional(condition) : std::nullopt;
    Condition left;
    left.kind = condition.kind;
    const bool negatesParts = isNegated != (condition.kind == Kind::Not);
    for (const auto& part : condition.parts) {
        auto rest = restricted(part, reads, others, negatesParts);
        if (rest)
            left.parts.push_back(std::move(*rest));
    }
    // Any row may pass an "or" by the part that is not tested. After a "not" this applies to an "and"
    // instead.
    const bool needsAllParts = condition.kind == (isNegated ? Kind::All : Kind::Any);
    const bool isWhole = left.parts.size() == condition.parts.size();
    if (left.parts.empty() || (needsAllParts && !isWhole))
        return std::nullopt;
    return left;
}

void narrow(Period& period, const Condition& test)
{
    const QDate day = test.value.toDate();
    const auto& comparison = test.comparison;
    const bool bounds = comparison != "<>";
    if (bounds && comparison.front() != '<') {
        const QDate from = comparison == ">" ? day.addDays(1) : day;
        period.from = period.from.isValid() ? std::max(period.from, from) : from;
    }
    if (bounds && comparison.front() != '>') {
        const QDate to = comparison == "<" ? day.addDays(-1) : day;
        period.to = period.to.isValid() ? std::min(period.to, to) : to;
    }
    period.name = test.periodName;
}

bool isBound(const Condition& condition, const FieldName& day)
{
    return condition.kind == Condition::Kind::Test && condition.field == day && condition.comparison != "<>";
}

void collectPeriod(const Condition& condition, const FieldName& day, std::optional<Period>& period)
{
    if (isBound(condition, day)) {
        if (!period)
            period.emplace();
        narrow(*period, condition);
    } else if (condition.kind == Condition::Kind::All) {
        for (const auto& part : condition.parts)
            collectPeriod(part, day, period);
    }
}

class SqlWriter
{
public:
    SqlWriter(const ColumnOf& column, std::vector<store::Value>& values) : m_column(column), m_values(values)
    {
    }

    std::string write(const Condition& condition)
    {
        switch (condition.kind) {
        case Condition::Kind::Test:
            return test(condition);
        case Condition::Kind::TwoFields:
            return '(' + m_column(condition.field) + ' ' + condition.comparison + ' ' +
                   m_column(condition.other) + ')';
        case Condition::Kind::Nothing:
            return '(' + namesNothingSql(condition.field, m_column(condition.field)) + ')';
        case Condition::Kind::Not:
            return "(NOT " + write(condition.parts.front()) + ')';
        case Condition::Kind::Any:
            return halves(condition.parts, " OR ");
        case Condition::Kind::All:
            break;
        }
        return condition.parts.empty() ? "1" : halves(condition.parts, " AND ");
    }

private:
    /// The engine takes only some hundred levels of brackets. Halving keeps a chain of thousands of tests
    /// flat.
    std::string halves(std::span<const Condition> parts, const char* word)
    {
        if (parts.size() == 1)
            return write(parts.front());
        const auto half = parts.size() / 2;
        const std::string left = halves(parts.first(half), word);
        return '(' + left + word + halves(parts.subspan(half), word) + ')';
    }

    std::string test(const Condition& condition)
    {
        const auto type = condition.field.definition().type;
        std::string column = m_column(condition.field);
        m_values.push_back(condition.value);
        // A text of digits is compared with a number by value, so leading zeros do not matter.
        if (!condition.value.isText() && (condition.field.isText()))
            column = "CAST(" + column + " AS NUMERIC)";
        // Any number but 0 means yes.
        if (type == FieldType::YesNo)
            return "((" + column + " <> 0) " + condition.comparison + " (? <> 0))";
        return '(' + column + ' ' + condition.comparison + " ?)";
    }

    const ColumnOf& m_column;
    std::vector<store::Value>& m_values;
};

} // namespace

Condition restrictedTo(const Condition& condition, const Reads& reads, QStringList& others)
{
    return restricted(condition, reads, others).value_or(Condition());
}

std::optional<Period> periodOf(const Condition& condition, const FieldName& day)
{
    std::optional<Period> period;
    collectPeriod(condition, day, period);
    return period;
}

bool isOnlyPeriod(const Condition& condition, const FieldName& day)
{
    if (condition.kind != Condition::Kind::All)
        return isBound(condition, day);
    return !condition.parts.empty() &&
           std::ranges::all_of(condition.parts, [&day](const auto& part) { return isOnlyPeriod(part, day); });
}

bool mentions(const Condition& condition, const std::function<bool(const FieldName&)>& isWanted)
{
    if (isTest(condition))
        return isWanted(condition.field) || (condition.other.table && isWanted(condition.other));
    return std::ranges::any_of(condition.parts,
                               [&isWanted](const auto& part) { return mentions(part, isWanted); });
}

std::string namesNothingSql(const FieldName& field, const std::string& column)
{
    return field.isText() ? "ifnull(ltrim(" + column + ", '0 '), '') = ''" : "ifnull(" + column + ", 0) = 0";
}

std::string conditionSql(const Condition& condition, const ColumnOf& column,
                         std::vector<store::Value>& values)
{
    return SqlWriter(column, values).write(condition);
}

} // namespace norvane::reports
