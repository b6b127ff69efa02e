// The names of a shop: what the numbers of its sales mean now.
#pragma once

#include "chain/ChainShop.h"
#include "store/engine/Database.h"

#include <QStringList>

namespace norvane::chain
{

/// Choices of a publication of names.
struct NameOptions {
    bool mayEmpty = false;     ///< a table that is empty in the shop
    bool comparesRows = false; ///< trusts no digest
};

/// Result of a publication of names.
struct PublishedNames {
    QStringList vanished; ///< tables that are published and empty in the shop, by their names in PostgreSQL
    QStringList differences; ///< a sentence for each table whose rows differed, although nothing has changed
};

/// Publishes the tables of names that have changed, all in one transaction.
PublishedNames publishNames(Server& server, store::Database& database, int shop, const ShopLock& lock,
                            const NameOptions& options);

/// What publishNames() would find. Changes nothing.
PublishedNames previewNames(Server& server, store::Database& database, int shop, const NameOptions& options);

} // namespace norvane::chain
