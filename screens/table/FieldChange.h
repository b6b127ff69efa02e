// One column set in many rows: to a value, by an amount or per cent, or from another column.
#pragma once

#include "platform/Decimal.h"
#include "screens/table/PendingEdits.h"

#include <QLatin1StringView>
#include <QString>
#include <QStringList>

#include <span>
#include <vector>

namespace norvane::screens
{

class TableModel;

/// How the new value of a cell is made.
enum class ChangeKind {
    Value,   ///< the text that was entered
    Amount,  ///< the number plus an amount, which may be negative
    Percent, ///< the number plus so many per cent of it
    Copy,    ///< the value of another column
};

/// How a computed number is rounded, and what a list calls it.
struct ChangeRounding {
    QLatin1StringView label;
    Decimal step;   ///< multiples of it; 0 for the decimals of the column
    Decimal offset; ///< subtracted from the multiple: 0.01 for amounts that end with .99
};

/// None comes first.
[[nodiscard]] std::span<const ChangeRounding> changeRoundings();

/// The nearest number that @p rounding allows, halves up; 0 remains 0, since it stands for a missing price.
/// @param decimals of the column. @throws RuntimeFailure with Failure::Overflow beyond 18 digits.
[[nodiscard]] Decimal roundedBy(const ChangeRounding& rounding, const Decimal& number, int decimals);

struct FieldChange {
    ChangeKind kind = ChangeKind::Value;
    int column = 0;
    QString text;   ///< the value, the amount "-0.20" or the per cent "5"
    int source = 0; ///< column to copy from
    ChangeRounding rounding;
};

/// What it changes, and a line for each row that cannot take its new value: which, what and why. A change
/// whose amount is not a number changes nothing and says so in one line.
struct FieldPlan {
    std::vector<PendingEdit> edits;
    QStringList refusals;
};

[[nodiscard]] FieldPlan planChange(TableModel& table, const FieldChange& change,
                                   const std::vector<int>& rows);

} // namespace norvane::screens
