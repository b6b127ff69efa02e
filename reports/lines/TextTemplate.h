// Texts with fields in them, as layouts define them, and how they are filled with the fields of a line.
#pragma once

#include "reports/formula/Expression.h"
#include "reports/lines/CellFormat.h"

#include <QHash>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace norvane::reports
{

/// Names of another table, found by the number of a record. They are read once, when the report runs.
struct NameList {
    FieldName name;
    FieldName key;                 ///< the field of the same table that its first index orders by
    QHash<QString, QString> names; ///< by keyOf()

    /// Whether it names the keys on which the number is, in place of a record.
    [[nodiscard]] bool isOfKeys() const;
    /// A number as lists compare it: registers fill numbers up with zeros and blanks.
    [[nodiscard]] static QString keyOf(const store::Value& number);
};

/// A text with fields in it: "{TIMEPERIOD.STARTTIME} to {TIMEPERIOD.ENDTIME}".
struct TextTemplate {
    struct Part {
        QString text;
        std::optional<Slot> slot; ///< the field shown instead of the text
        /// Words shown instead of the field's value. One: if the field is not 0. Several: for 0, 1 and so on.
        std::vector<std::vector<Part>> words;
        std::shared_ptr<const NameList> names =
            nullptr; ///< shows the name that belongs to the field's number
    };
    std::vector<Part> parts;

    [[nodiscard]] bool isEmpty() const { return parts.empty(); }
};

/// A text of a line, and the text that takes its place when all its fields are empty.
struct LineText {
    TextTemplate text;
    std::vector<TextTemplate> further; ///< added after it with commas, unless they are empty
    TextTemplate missing;              ///< its fields are shown as numbers of records, in any format
    CellFormat format;
};

/// The fields of a line, by slot.
using LineFields = std::vector<store::Value>;

/// Puts the fields into the text. When all of them are empty, the layout's text for a missing record is used.
[[nodiscard]] QString textOf(const LineText& text, const LineFields& fields);
[[nodiscard]] QString textOf(const TextTemplate& text, const CellFormat& format, const LineFields& fields);

/// Whether a value names no record: null, 0 or blank.
[[nodiscard]] bool namesNothing(const store::Value& value);

} // namespace norvane::reports
