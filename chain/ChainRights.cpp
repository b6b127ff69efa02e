// See ChainRights.h.
#include "chain/ChainRights.h"

#include "chain/ChainSchema.h"
#include "chain/ChainShop.h"
#include "chain/ChainTables.h"
#include "chain/Partitions.h"
#include "chain/Rollups.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::chain
{
namespace
{

/// PostgreSQL cuts longer names.
constexpr std::size_t longestName = 63;

/// All that a shop writes.
std::vector<std::string> writtenTables()
{
    std::vector<std::string> all{"published_days", "published_names"};
    for (const auto& table : salesTables())
        all.emplace_back(table.name);
    for (const auto& table : nameTables())
        all.emplace_back(table.name);
    for (const std::string& rollup : rollupNames())
        all.push_back(rollup);
    return all;
}

std::string makeRole(const std::string& role)
{
    return "DO $$ BEGIN IF NOT EXISTS (SELECT FROM pg_catalog.pg_roles WHERE rolname = '" + role +
           "') THEN CREATE ROLE " + role + "; END IF; END $$";
}

/// Roles are known to the whole server, so the name of a shop's role has that of its database in it: a shop
/// of one chain has no rows in another. The number does not change when the shop is renamed.
constexpr const char* userOfShop =
    "CREATE OR REPLACE FUNCTION shop_user(shop integer) RETURNS text LANGUAGE sql STABLE PARALLEL SAFE "
    "BEGIN ATOMIC SELECT current_database() || '_shop_' || shop; END";

/// Everybody has all rows that his rights reach, and a shop of those its own. The server replaces a call of
/// shop_user by its body, and a cluster takes no subquery here. Locks a table only if it is not protected
/// yet.
std::string protect(const std::string& table)
{
    const auto unlessPolicy = [&](const std::string& name, const std::string& policy) {
        return "IF NOT EXISTS (SELECT FROM pg_catalog.pg_policy WHERE polname = '" + name +
               "' AND polrelid = '" + table + "'::regclass) THEN CREATE POLICY " + name + " ON " + table +
               ' ' + policy + "; END IF; ";
    };
    return "DO $$ BEGIN " + unlessPolicy("all_rows", "USING (true)") +
           unlessPolicy("own_rows",
                        "AS RESTRICTIVE TO norvane_shop USING (current_user::text = shop_user(shop))") +
           "IF NOT (SELECT relrowsecurity FROM pg_catalog.pg_class WHERE oid = '" + table +
           "'::regclass) THEN ALTER TABLE " + table + " ENABLE ROW LEVEL SECURITY; END IF; END $$";
}

/// For tables that the owner of the present ones makes later, months included.
constexpr const char* readLaterTables =
    "DO $$ BEGIN EXECUTE (SELECT format('ALTER DEFAULT PRIVILEGES FOR ROLE %I IN SCHEMA norvane GRANT SELECT "
    "ON TABLES TO norvane_reader', pg_get_userbyid(relowner)) FROM pg_catalog.pg_class "
    "WHERE oid = 'chain_version'::regclass); END $$";

std::vector<std::string> rightsStatements()
{
    // A chain of a former program has a make_month without the limit for shops.
    std::vector<std::string> all = partitionFunctions();
    for (const std::string& statement : {
             makeRole("norvane_reader"),
             makeRole("norvane_shop"),
             std::string(userOfShop),
             std::string("COMMENT ON FUNCTION shop_user(integer) IS 'Name of the login of a shop'"),
             std::string("GRANT USAGE ON SCHEMA norvane TO norvane_reader, norvane_shop"),
             std::string("GRANT SELECT ON ALL TABLES IN SCHEMA norvane TO norvane_reader"),
             std::string(readLaterTables),
             std::string("GRANT EXECUTE ON FUNCTION make_month(date) TO norvane_shop"),
             std::string("GRANT SELECT ON chain_version TO norvane_shop"),
             // Not its name: a second shop of that name would be taken for the first one.
             std::string("GRANT SELECT, UPDATE (folder_id) ON shops TO norvane_shop"),
             protect("shops"),
         })
        all.push_back(statement);
    for (const std::string& table : writtenTables()) {
        all.push_back("GRANT SELECT, INSERT, UPDATE, DELETE ON " + table + " TO norvane_shop");
        all.push_back(protect(table));
    }
    return all;
}

void giveRights(pqxx::work& work)
{
    lockSchema(work);
    for (const std::string& statement : rightsStatements())
        work.exec0(statement);
}

/// A login that was closed because its computer was stolen remains closed.
void makeLogin(pqxx::work& work, const std::string& user)
{
    const bool exists =
        work.exec_params1("SELECT EXISTS (SELECT FROM pg_catalog.pg_roles WHERE rolname = $1)", user)[0]
            .as<bool>();
    // A stolen computer cannot use up the connections of the server.
    work.exec0(exists ? "GRANT norvane_shop TO " + work.quote_name(user)
                      : "CREATE ROLE " + work.quote_name(user) +
                            " LOGIN CONNECTION LIMIT 5 IN ROLE norvane_shop");
}

} // namespace

void prepareRights(Server& server)
{
    prepareSchema(server);
    server.transact(giveRights);
}

ShopUser addShopUser(Server& server, const QString& name)
{
    prepareRights(server);
    ShopUser added{};
    server.transact([&](pqxx::work& work) {
        added.shop = shopNamed(work, name);
        const auto user = work.exec_params1("SELECT shop_user($1)", added.shop)[0].as<std::string>();
        if (user.size() > longestName) {
            throw ChainError(ChainFailure::Unfit,
                             u"The name of the database is too long for logins of shops (%1): rename it, "
                             "or publish as the owner."_s.arg(server.where()));
        }
        makeLogin(work, user);
        added.user = QString::fromStdString(user);
    });
    return added;
}

} // namespace norvane::chain
