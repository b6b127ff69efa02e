// Selection formulas and the expressions of report files. Input: "s" for a selection or "e" for an
// expression, then the formula. What the parser takes, the database must run and the calculation must end.
#include "fuzz/CustomerFile.h"
#include "fuzz/Target.h"
#include "reports/formula/Expression.h"
#include "reports/formula/SelectionFormula.h"
#include "store/catalogue/Catalogue.h"
#include "store/engine/BoundQuery.h"

#include <QDate>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::fuzz
{
namespace
{

using reports::Condition;

template <typename Work>
bool parses(Work work)
{
    try {
        work();
        return true;
    } catch (const reports::FormulaError& error) {
        require(error.text().startsWith("column "_L1), "a mistake in a formula names its column");
        return false;
    }
}

const store::TableDefinition& sales()
{
    return *store::catalogueTable(u"PLUSALES"_s);
}

std::string columnOf(const reports::FieldName& field)
{
    return '"' + field.definition().name.toStdString() + '"';
}

/// Runs a condition as a report does, on a table with no rows: the statement is what counts.
void runCondition(const Condition& condition)
{
    std::vector<store::Value> values;
    const std::string where = reports::conditionSql(condition, columnOf, values);
    store::BoundQuery query(customerDatabase(), "SELECT 1 FROM \"PLUSALES\" WHERE " + where, values, u"x"_s);
    require(!query.next(), "a table without rows gives none");
}

void trySelection(const QString& formula)
{
    Condition condition;
    if (!parses([&] { condition = reports::parseSelection(formula, QDate(2026, 3, 31), &sales()); }))
        return;
    QStringList others;
    const auto reads = [](const store::TableDefinition& table) {
        return &table == &sales();
    };
    const Condition own = reports::restrictedTo(condition, reads, others);
    require(own.isAlwaysTrue() ||
                !reports::mentions(own, [&](const auto& field) { return field.table != &sales(); }),
            "a restricted condition tests its own table only");
    const auto day = *reports::findField(u"PLUSALES.SALESDATE");
    require(!reports::isOnlyPeriod(own, day) || reports::periodOf(own, day).has_value(),
            "a formula that asks for days alone has a period");
    runCondition(own);
}

constexpr std::array<std::string_view, 5> numbers{"0", "-12.50", "999999999999999999", "0.000001", "7"};

void tryExpression(const QString& formula)
{
    reports::Expression expression;
    int slots = 0;
    const reports::FieldSlots fields{&sales(), [&](const reports::FieldName&, qsizetype) {
                                         return slots++;
                                     }};
    if (!parses([&] { expression = reports::parseExpression(formula, fields); }))
        return;
    std::vector<std::string> line;
    line.reserve(static_cast<std::size_t>(slots));
    for (int i = 0; i < slots; ++i)
        line.emplace_back(numbers[static_cast<std::size_t>(i) % numbers.size()]);
    std::vector<bool> marked(line.size());
    expression.markSlots(marked);
    succeeds({Failure::Overflow}, [&] { static_cast<void>(expression.value({line, line})); });
}

} // namespace

void tryInput(std::string_view input)
{
    const bool isExpression = takeByte(input) == 'e';
    const QString formula = QString::fromUtf8(input.data(), static_cast<qsizetype>(input.size()));
    isExpression ? tryExpression(formula) : trySelection(formula);
}

} // namespace norvane::fuzz
