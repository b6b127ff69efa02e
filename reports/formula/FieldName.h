// A field as layouts and formulas name it: {TABLE.FIELD}.
#pragma once

#include "store/engine/Definitions.h"

#include <QStringView>

#include <optional>

namespace norvane::reports
{

/// A field of the catalogue. Names match without regard to case.
struct FieldName {
    const store::TableDefinition* table = nullptr; ///< of the catalogue
    int ordinal = 0;

    [[nodiscard]] const store::FieldDefinition& definition() const { return table->fields.at(ordinal); }
    [[nodiscard]] const QString& name() const { return definition().name; }
    /// As a formula names it.
    [[nodiscard]] QString text() const { return u'{' + table->name + u'.' + name() + u'}'; }
    [[nodiscard]] bool isNumber() const;
    /// Also for a number of many digits, which is stored as text.
    [[nodiscard]] bool isText() const;
    bool operator==(const FieldName&) const = default;
};

/// Finds the field named @p name ("PLUSALES.ID", without braces). A name without a table is a field of the
/// table @p own, if that is given.
/// @return nothing if the catalogue has none of that name.
[[nodiscard]] std::optional<FieldName> findField(QStringView name,
                                                 const store::TableDefinition* own = nullptr);

} // namespace norvane::reports
