// What is not copied from shop to shop: what belongs to a shop itself, and what registers of another model
// cannot hold.
#pragma once

#include "register/RegisterModel.h"

#include <QString>

namespace norvane::programme
{

/// A field of a record, with the value that would be copied.
struct CopiedField {
    QStringView table;
    QStringView field;
    int record = 0; ///< number of the record; 0 where the key is a text
    QStringView text;
};

/// Whether the field belongs to each shop, so that it is neither compared nor copied: the points that its
/// registers count, its number in the chain.
[[nodiscard]] bool belongsToShop(QStringView table, QStringView field);

/// Whether the registers of a shop count the field, so that it is never the same in two places.
[[nodiscard]] bool isCountedByRegisters(QStringView table, QStringView field);

/// Why nothing of @p table can be copied between registers of these models; empty if it can.
[[nodiscard]] QString refusalOfTable(QStringView table, const RegisterModel& from, const RegisterModel& to);
/// Why @p field cannot be copied between registers of these models; empty if it can.
[[nodiscard]] QString refusalOfField(const CopiedField& field, const RegisterModel& from,
                                     const RegisterModel& to);
/// Why the whole record cannot be copied; empty if it can.
[[nodiscard]] QString refusalOfRecord(QStringView table, int record, const RegisterModel& from,
                                      const RegisterModel& to);

} // namespace norvane::programme
