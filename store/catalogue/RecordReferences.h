// Which fields hold the number of a record of another table.
#pragma once

#include <QLatin1StringView>
#include <QStringView>

#include <span>

namespace norvane::store
{

/// A field with the number of a record of table @p to. "*" in the field and the condition means the numbers
/// from first to last: a record with several such fields counts once.
struct RecordReference {
    QLatin1StringView to;
    QLatin1StringView holder; ///< what the user calls a record with this field; several take an "s"
    QLatin1StringView table;
    QLatin1StringView field;
    int first = 1;
    int last = 1;
    QLatin1StringView condition = always; ///< in the engine's words: when the field is such a number

    static constexpr QLatin1StringView always{"1"};
};

/// References to one table from the same kind of holder follow each other.
[[nodiscard]] std::span<const RecordReference> recordReferences();

/// The reference that @p field of @p table always is, in any case; nullptr if it is none.
[[nodiscard]] const RecordReference* referenceOf(QStringView table, QStringView field);

} // namespace norvane::store
