// A field as layouts and formulas name it: {TABLE.FIELD}.
#pragma once

#include "store/Definitions.h"

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
    bool operator==(const FieldName&) const = default;
};

/// The field that @p name ("PLUSALES.ID", the braces left out) stands for. A name without a table is one of
/// @p own, where there is such a table.
/// @return nothing when the catalogue has none of that name.
[[nodiscard]] std::optional<FieldName> findField(QStringView name,
                                                 const store::TableDefinition* own = nullptr);

} // namespace norvane::reports
