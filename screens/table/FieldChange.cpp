// See FieldChange.h.
#include "screens/table/FieldChange.h"

#include "platform/Excerpt.h"
#include "platform/RuntimeFailure.h"
#include "register/PluNumber.h"
#include "screens/table/CellInput.h"
#include "screens/table/TableModel.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

constexpr ChangeRounding roundings[] = {
    {"to the decimals of the column"_L1, {}, {}},
    {"to 0.05"_L1, {5, 2}, {}},
    {"to 0.10"_L1, {1, 1}, {}},
    {"to an amount that ends with .99"_L1, {1, 0}, {1, 2}},
};

/// "5", "-0.20", "+3,5".
std::optional<Decimal> signedNumber(const QString& typed)
{
    QString text = typed.trimmed().replace(u',', u'.');
    if (text.startsWith(u'+'))
        text.remove(0, 1);
    return text.isEmpty() ? std::nullopt : Decimal::tryParse(text.toStdString());
}

/// The new numbers of a change by amount or per cent.
class Computation
{
public:
    Computation(const FieldChange& change, const TableColumn& column, const Decimal& amount)
        : m_change(change), m_column(column), m_amount(amount)
    {
    }

    [[nodiscard]] Decimal of(const Decimal& number) const
    {
        constexpr Decimal whole(100, 0);
        const Decimal sum = m_change.kind == ChangeKind::Amount
                                ? number.plus(m_amount)
                                : number.times(whole.plus(m_amount)).shifted(-2);
        return roundedBy(m_change.rounding, sum, m_column.decimals());
    }

private:
    const FieldChange& m_change;
    const TableColumn& m_column;
    Decimal m_amount;
};

/// One change of many rows.
class Planner
{
public:
    Planner(TableModel& table, const FieldChange& change)
        : m_table(table), m_change(change), m_column(table.column(change.column))
    {
    }

    FieldPlan plan(const std::vector<int>& rows)
    {
        const auto amount = signedNumber(m_change.text);
        if (computes() && !amount)
            return {{}, {u"\"%1\" is not a number"_s.arg(excerpt(m_change.text))}};
        m_amount = amount.value_or(Decimal());
        std::vector<int> columns{m_change.column};
        if (m_change.kind == ChangeKind::Copy)
            columns.push_back(m_change.source);
        const auto held = m_table.rows().valuesOf(rows, columns);
        m_plan.edits.reserve(rows.size());
        for (std::size_t place = 0; place < rows.size(); ++place) {
            const auto& values = held[place];
            take(rows[place], {values.front(), values[columns.size() - 1], values.back()});
        }
        return std::move(m_plan);
    }

private:
    /// What is stored of a record.
    struct Stored {
        const store::Value& field;  ///< in the column that is set
        const store::Value& source; ///< in the one to copy from, if any
        const store::Value& key;
    };

    [[nodiscard]] bool computes() const
    {
        return m_change.kind == ChangeKind::Amount || m_change.kind == ChangeKind::Percent;
    }

    [[nodiscard]] CellInput inputOf(int row, const Stored& stored) const
    {
        if (m_change.kind == ChangeKind::Value)
            return cellInput(m_column, m_change.text);
        if (m_change.kind == ChangeKind::Copy) {
            const TableColumn& source = m_table.column(m_change.source);
            return cellInput(m_column, source.text(m_table.value(row, m_change.source, stored.source)));
        }
        const Decimal number = m_table.value(row, m_change.column, stored.field).toDecimal();
        return cellInput(m_column, Computation(m_change, m_column, m_amount).of(number));
    }

    void take(int row, const Stored& stored)
    {
        CellInput input;
        try {
            input = inputOf(row, stored);
        } catch (const RuntimeFailure& failure) {
            input.refusal = failure.text();
        }
        if (!input.value) {
            const QString& keyField = m_table.rows().source().keyField;
            m_plan.refusals +=
                u"%1: the new value %2"_s.arg(shownKey(keyField, stored.key.toText()), input.refusal);
            return;
        }
        PendingEdit edit = m_table.editOf(row, m_change.column, stored.key, stored.field, *input.value);
        if (edit.before != edit.after || m_table.edits().find(edit.row, edit.column) != nullptr)
            m_plan.edits.push_back(std::move(edit));
    }

    TableModel& m_table;
    const FieldChange& m_change;
    const TableColumn& m_column;
    Decimal m_amount;
    FieldPlan m_plan;
};

} // namespace

std::span<const ChangeRounding> changeRoundings()
{
    return roundings;
}

Decimal roundedBy(const ChangeRounding& rounding, const Decimal& number, int decimals)
{
    constexpr int digits = 17;
    if (rounding.step == Decimal() || number == Decimal())
        return number.rounded(decimals);
    const auto multiple = [&](const Decimal& times) {
        const Decimal minus(-rounding.offset.coefficient(), rounding.offset.scale());
        return times.times(rounding.step).plus(minus);
    };
    const Decimal times = number.plus(rounding.offset).dividedBy(rounding.step, digits).rounded(0);
    const Decimal rounded = multiple(times);
    return rounded < Decimal() && number > Decimal() ? multiple(Decimal(1, 0)) : rounded;
}

FieldPlan planChange(TableModel& table, const FieldChange& change, const std::vector<int>& rows)
{
    return Planner(table, change).plan(rows);
}

} // namespace norvane::screens
