// The formats that a layout can give a column, and how they turn a field into what is read.
#pragma once

#include "reports/ReportData.h"
#include "store/Value.h"

#include <QHash>
#include <QString>

#include <optional>

namespace norvane::reports
{

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

struct CellFormat {
    FormatKind kind = FormatKind::Text;
    int leastDecimals = 0;
    int mostDecimals = 0;
    QHash<QString, QString> words; ///< by number

    [[nodiscard]] bool isNumber() const { return kind == FormatKind::Number || kind == FormatKind::Money; }
    [[nodiscard]] Alignment alignment() const;
    /// The text of a stored value; empty for null.
    [[nodiscard]] QString text(const store::Value& value) const;
};

/// "Text", "Digits", "Money", "Quantity", "Date", "Day", "Time", "YesNo", or a pattern such as "0.00" and
/// "0.###". @return nothing for any other text.
[[nodiscard]] std::optional<CellFormat> parseFormat(QStringView text);

/// "0;None,1;Added": the words for numbers, as the lists of screens have them. @return nothing for any other
/// text.
[[nodiscard]] std::optional<QHash<QString, QString>> parseWords(const QString& text);

} // namespace norvane::reports
