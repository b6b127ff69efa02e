// Which shop of the chain a customer's folder is.
#pragma once

#include "chain/Server.h"

#include <string>

namespace norvane::chain
{

/// A customer on this machine.
struct ShopFolder {
    QString name; ///< of the folder
    QString customerPath;
    QString databasePath;
};

/// The number of the shop. A folder is known by an id that its first publication leaves in it, in
/// norvane-chain.ini, and by its name, without regard to case: two folders of one name on two machines are
/// two shops, and a copy of a folder is another shop, too, until the user says otherwise.
/// @param adopt the user says that the folder is the shop: it takes over the shop of its name, or gives the
/// shop of its id its name. A shop of which nothing is published belongs to the first folder of its name.
/// @throws ChainError OtherShop when name and id do not fit together and @p adopt is false, or both belong to
/// other shops; Unwritable when the id cannot be kept; NoRights for a new shop and a user who may not add
/// one.
[[nodiscard]] int findShop(Server& server, const ShopFolder& folder, bool adopt);

/// The same without changing anything, here or there. @return 0 for a shop that was never published.
[[nodiscard]] int findPublishedShop(Server& server, const ShopFolder& folder, bool adopt);

/// The shop of that name, a new one if there is none.
[[nodiscard]] int shopNamed(pqxx::work& work, const QString& name);

/// While it lives, no other program publishes the shop.
class ShopLock
{
public:
    /// @throws ChainError Busy.
    ShopLock(Server& server, int shop, const QString& name);
    ~ShopLock();
    ShopLock(const ShopLock&) = delete;
    ShopLock& operator=(const ShopLock&) = delete;

    /// Takes the lock once more until the end of a transaction: the connection may be a new one.
    /// @throws ChainError Busy.
    void holdIn(pqxx::work& work) const;

private:
    [[noreturn]] void fail() const;

    Server& m_server;
    QString m_name;
    std::string m_key;
};

} // namespace norvane::chain
