// Which records refer to a record of a table by its number.
#pragma once

#include "store/catalogue/RecordReferences.h"
#include "store/engine/Database.h"
#include "store/engine/Value.h"

#include <QString>

namespace norvane::screens
{

/// @p text with @p number in the place of its "*".
[[nodiscard]] QString numbered(QString text, int number);
/// Whether @p database has the field of @p reference; one of a former version may lack it.
[[nodiscard]] bool isIn(const store::Database& database, const store::RecordReference& reference);

/// What holds a number.
struct KeyHolders {
    int count = 0;
    /// "3 keys, 1 look-up and 2 links", "no key, look-up or link"; empty for a table that nothing refers to.
    QString words;
};

/// Counts the records that refer to the number @p key of a record of @p table. No record refers to number 0:
/// it means "none" in every field that refers to a record.
/// @throws RuntimeFailure with Failure::NotOurDatabase and others of store::BoundQuery.
[[nodiscard]] KeyHolders holdersOfKey(store::Database& database, const QString& table,
                                      const store::Value& key);

/// SQL that is true for the records of @p table, with their numbers in @p keyField, that are on no key of a
/// keyboard. @return empty if they cannot be on keys.
[[nodiscard]] QString withoutKeySql(const store::Database& database, const QString& table,
                                    const QString& keyField);

} // namespace norvane::screens
