// The columns of a table of records: those of the screen that edits one of them.
#pragma once

#include "base/ApplicationValues.h"
#include "screens/ScreenReader.h"
#include "store/engine/Database.h"
#include "store/engine/Value.h"

#include <QVector>

#include <functional>

namespace norvane::screens
{

/// A row of a drop-down list.
struct ListEntry {
    store::Value value;
    QString shown; ///< "3 Drinks"
};

/// A field with the control that shows it on the screen.
struct TableColumn {
    ControlDefinition control; ///< with the rules of the customer's registers
    store::FieldDefinition field;
    QString label;              ///< of the control on the screen
    QVector<ListEntry> entries; ///< of a drop-down list
    bool isKey = false;         ///< the number by which other records may refer to this one

    [[nodiscard]] ControlKind kind() const { return control.kind; }
    [[nodiscard]] bool isNumber() const
    {
        return kind() == ControlKind::Integer || kind() == ControlKind::Decimal;
    }
    /// Whether what it shows consists of digits, which line up at the right.
    [[nodiscard]] bool isOfDigits() const;
    /// Keys are changed on the screen only, which asks about the records that refer to them.
    [[nodiscard]] bool isEditable() const;
    /// Why it is not editable, for the status bar.
    [[nodiscard]] QString whyLocked() const;
    /// Places after the point of a number.
    [[nodiscard]] int decimals() const;
    /// The entry of @p value, nullptr if the list has none.
    [[nodiscard]] const ListEntry* entryOf(const store::Value& value) const;
    /// What the control on the screen shows of @p value: "2.50", "3 Drinks", "Yes". Empty for no.
    [[nodiscard]] QString text(const store::Value& value) const;
};

using TableColumns = QVector<TableColumn>;

/// A table and what is shown of it.
struct TableSource {
    QString table;
    QString keyField;
    TableColumns columns;
};

/// Reads the columns from the controls that @p file shows, in its order; a second control of a field is left
/// out. @param labelOf what the screen calls the field of that name.
/// @throws RuntimeFailure as the screen does when it is built from the file.
[[nodiscard]] TableSource tableSource(store::Database& database, const ScreenReader& file,
                                      const ApplicationValues& values,
                                      const std::function<QString(const QString& field)>& labelOf);

} // namespace norvane::screens
