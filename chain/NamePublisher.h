// The names of a shop: what the numbers of its sales mean now.
#pragma once

#include "chain/ChainShop.h"
#include "store/engine/Database.h"

#include <QStringList>

namespace norvane::chain
{

/// Publishes the tables of names that have changed, all in one transaction.
/// @param mayEmpty whether a table that is empty in the shop may be emptied.
/// @return the tables that were not for that reason, by their names in PostgreSQL.
QStringList publishNames(Server& server, store::Database& database, int shop, const ShopLock& lock,
                         bool mayEmpty);

/// The tables of names that are published and empty in the shop. Changes nothing.
QStringList vanishedNames(Server& server, store::Database& database, int shop);

} // namespace norvane::chain
