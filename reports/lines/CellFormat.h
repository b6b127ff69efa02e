// The formats that a layout can give a column, and how each turns a stored field into text.
#pragma once

#include "reports/data/Alignment.h"
#include "store/engine/Value.h"

#include <QHash>
#include <QString>

#include <optional>

namespace norvane::reports
{

/// Kinds of cell formats.
enum class FormatKind {
    Text,
    Digits, ///< a number of many digits held as text, without its leading zeros
    Number,
    Money, ///< with the decimal places of the shop
    Date,  ///< 25/11/2026
    Day,   ///< 25/11
    Time,  ///< 09:00, of 900 or 0900
    YesNo,
    Words ///< a word for each number
};

/// How a cell shows its value.
struct CellFormat {
    FormatKind kind = FormatKind::Text;
    int leastDecimals = 0;
    int mostDecimals = 0;
    QHash<QString, QString> words; ///< of FormatKind::Words: from the stored number to its word

    [[nodiscard]] bool isNumber() const { return kind == FormatKind::Number || kind == FormatKind::Money; }
    /// Patterns without places are for numbers of records, which have no thousands.
    [[nodiscard]] bool isGrouped() const { return isNumber() && mostDecimals > 0; }
    [[nodiscard]] Alignment alignment() const;
    /// The text of a stored value; empty for null.
    [[nodiscard]] QString text(const store::Value& value) const;
};

/// Reads "Text", "Digits", "Money", "Quantity", "Date", "Day", "Time", "YesNo", or a pattern such as "0.00"
/// and "0.###". @return nothing for any other text.
[[nodiscard]] std::optional<CellFormat> parseFormat(QStringView text);

/// Reads "0;None,1;Added": a word for each number, written as in the lists of screens.
/// @return nothing if a number has no word.
[[nodiscard]] std::optional<QHash<QString, QString>> parseWords(const QString& text);

} // namespace norvane::reports
