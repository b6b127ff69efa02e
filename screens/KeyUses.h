// Where a record is used, in words: keys, look-ups, links, recipes, offers, other records.
#pragma once

#include "store/engine/Database.h"
#include "store/engine/Value.h"

#include <QHash>
#include <QString>
#include <QStringList>

namespace norvane::screens
{

/// The places that name a record by its number.
struct KeyUses {
    int count = 0;
    QStringList first; ///< some of them: "Keyboard level 2, key 37", "Recipe 4 "Cappuccino", part 2"
};

/// Whether anything refers to records of @p table by their number.
[[nodiscard]] bool canBeUsed(const QString& table);

/// The places that use the record with the number @p key of @p table, keys first. A PLU is also used by the
/// mix and match offer that it belongs to. Number 0 means "none" everywhere, so it has no uses.
/// @param keysPerLevel of the customer's keyboard (keysOfLevel()); rows beyond its levels are not keys.
/// @param atMost as many are described.
/// @throws RuntimeFailure with Failure::NotOurDatabase and others of store::BoundQuery.
[[nodiscard]] KeyUses usesOfKey(store::Database& database, const QString& table, const store::Value& key,
                                int keysPerLevel, int atMost);

/// Which uses of many records are counted.
enum class UseKind { All, Keys };

/// How many uses each record of @p table has, by its number as it is stored; records without uses are not in
/// it. For lists of all records: one query for each kind of reference. @throws RuntimeFailure as usesOfKey().
[[nodiscard]] QHash<QString, int> countUses(store::Database& database, const QString& table, int keysPerLevel,
                                            UseKind kind = UseKind::All);

} // namespace norvane::screens
