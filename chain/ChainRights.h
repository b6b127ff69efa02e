// Who may do what in the PostgreSQL of a chain: readers read everything, a shop works with its own rows.
#pragma once

#include "chain/Server.h"

namespace norvane::chain
{

/// The login of one shop.
struct ShopUser {
    int shop;
    QString user; ///< "chain_shop_3" for shop 3 of the database chain
};

/// Makes or upgrades the schema, and makes the roles of readers and of shops with their rights; whatever is
/// there already remains. Readers may also read what is added to the schema later. The roles belong to the
/// whole server, as PostgreSQL's roles do.
///
/// The owner and others that had rights before keep them. Only members of the role of shops are
/// restricted to their own rows, by policies of the tables; partitions need none because no shop has rights
/// to them.
/// @throws ChainError NoRights for a user who does not own the tables or may not make roles, Busy.
void prepareRights(Server& server);

/// Does the same, adds the shop if the chain has none of that name, and makes a login for it, which has no
/// password yet. The first folder of that name that is published becomes the shop.
/// @throws ChainError as prepareRights() does; Unfit if the name of the database is too long for a login.
[[nodiscard]] ShopUser addShopUser(Server& server, const QString& name);

} // namespace norvane::chain
