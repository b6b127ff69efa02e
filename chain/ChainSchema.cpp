// The steps from an empty database to the current schema, and the partitions; see ChainSchema.h.
#include "chain/ChainSchema.h"

#include "chain/ChainComments.h"
#include "chain/ChainTables.h"
#include "chain/ChainViews.h"
#include "chain/Partitions.h"
#include "chain/RangeTotals.h"
#include "chain/Rollups.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::chain
{
namespace
{

std::string joined(const std::vector<std::string>& parts, const std::string& between)
{
    std::string all;
    for (const std::string& part : parts)
        all += (all.empty() ? "" : between) + part;
    return all;
}

std::string columnOf(const ChainColumn& column, const char* constraint)
{
    return std::string(column.name) + ' ' + typeOf(column.content) + constraint;
}

/// No sales refer to another table by a constraint: it would be looked up for every row, and distributed
/// tables could not have it.
std::string declarationOf(const SalesTable& table)
{
    std::vector<std::string> columns{"shop integer NOT NULL", "day date NOT NULL"};
    std::string key = "shop, day";
    for (const auto& item : table.items) {
        columns.push_back(columnOf(item, " NOT NULL"));
        key += ", " + std::string(item.name);
    }
    const auto all = columnsOf(table);
    for (auto added = all.begin() + static_cast<std::ptrdiff_t>(table.items.size()); added != all.end();
         ++added)
        columns.push_back(*added + " numeric NOT NULL");
    return "CREATE TABLE " + std::string(table.name) + " (" + joined(columns, ", ") + ", PRIMARY KEY (" +
           key + ")) PARTITION BY RANGE (day)";
}

std::string declarationOf(const NameTable& table)
{
    std::vector<std::string> columns{"shop integer NOT NULL"};
    for (const auto& column : table.columns)
        columns.push_back(columnOf(column, &column == table.columns.data() ? " NOT NULL" : ""));
    return "CREATE TABLE " + std::string(table.name) + " (" + joined(columns, ", ") +
           ", PRIMARY KEY (shop, " + std::string(table.columns.front().name) + "))";
}

/// Bookkeeping: which shops there are, and what of each is published.
constexpr auto books = std::to_array<const char*>({
    "CREATE TABLE shops (shop integer GENERATED ALWAYS AS IDENTITY PRIMARY KEY, name text NOT NULL, "
    "folded_name text NOT NULL UNIQUE, folder_id uuid NOT NULL UNIQUE, "
    "first_published timestamptz NOT NULL DEFAULT now())",
    "CREATE TABLE published_days (shop integer NOT NULL, day date NOT NULL, digest text NOT NULL, "
    "row_count bigint NOT NULL, published_at timestamptz NOT NULL DEFAULT now(), "
    "kept boolean NOT NULL DEFAULT false, PRIMARY KEY (shop, day))",
    "CREATE TABLE published_names (shop integer NOT NULL, table_name text NOT NULL, digest text NOT NULL, "
    "row_count bigint NOT NULL, published_at timestamptz NOT NULL DEFAULT now(), "
    "PRIMARY KEY (shop, table_name))",
});

std::vector<std::string> tableStatements()
{
    std::vector<std::string> all(books.begin(), books.end());
    for (const auto& table : salesTables())
        all.push_back(declarationOf(table));
    for (const auto& table : nameTables())
        all.push_back(declarationOf(table));
    return all;
}

/// The former views were those that the next step replaces.
std::vector<std::string> nothing()
{
    return {};
}

/// Totals of days and months, and what reads them. The publication of each shop brings its own days into the
/// new form; see Rollups.h. Numbers of shops come from findShop(): a column that counts by itself cannot be
/// copied to all servers of a cluster.
std::vector<std::string> totalStatements()
{
    std::vector<std::string> all{
        "ALTER TABLE shops ALTER COLUMN shop DROP IDENTITY IF EXISTS",
        "ALTER TABLE published_days ADD quantity numeric, ADD takings numeric, ADD net_sales numeric, "
        "ADD kept_digest text, ADD rolled_up boolean NOT NULL DEFAULT false",
    };
    for (const auto& more :
         {rollupStatements(), viewStatements(), rangeFunctions(), partitionFunctions(), commentStatements()})
        all.insert(all.end(), more.begin(), more.end());
    return all;
}

/// Days that a register with a wrong clock sold in the future are not the last ones, and no shard of a
/// cluster is taken for a table.
std::vector<std::string> clockStatements()
{
    auto all = viewStatements();
    for (const std::string& statement : partitionFunctions())
        all.push_back(statement);
    return all;
}

/// Each step upgrades a schema by one version; the first creates version 1.
using SchemaStep = std::vector<std::string> (*)();
constexpr auto steps =
    std::to_array<SchemaStep>({tableStatements, nothing, totalStatements, clockStatements});
constexpr int currentVersion = static_cast<int>(steps.size());
constexpr const char* versionTable = "chain_version";

/// The functions that find a name use a cache of the connection, which does not see what others created while
/// this one waited for the lock.
bool hasSchema(pqxx::work& work)
{
    return work
        .exec_params1("SELECT EXISTS (SELECT FROM pg_catalog.pg_namespace WHERE nspname = $1)",
                      std::string(schemaName))[0]
        .as<bool>();
}

bool exists(pqxx::work& work, const std::string& table)
{
    return work
        .exec_params1("SELECT EXISTS (SELECT FROM pg_catalog.pg_class c JOIN pg_catalog.pg_namespace n "
                      "ON n.oid = c.relnamespace WHERE n.nspname = $1 AND c.relname = $2)",
                      std::string(schemaName), table)[0]
        .as<bool>();
}

/// A schema that the owner of the database has made for the user is taken as it is.
void makeSchema(pqxx::work& work)
{
    if (!hasSchema(work))
        work.exec0(std::string("CREATE SCHEMA ") + schemaName);
    work.exec0("CREATE TABLE chain_version (version integer NOT NULL)");
    work.exec0("INSERT INTO chain_version VALUES (0)");
}

int versionOf(pqxx::work& work)
{
    // Names the schema, so that a user without rights to it sees which one.
    return work.exec1("SELECT max(version) FROM " + std::string(schemaName) + '.' + versionTable)[0]
        .as<int>();
}

/// The common case takes no lock.
int installedVersion(Server& server)
{
    int version = -1;
    server.transact([&](pqxx::work& work) {
        if (exists(work, versionTable))
            version = versionOf(work);
    });
    return version;
}

void takeSteps(pqxx::work& work)
{
    lockSchema(work);
    if (!exists(work, versionTable))
        makeSchema(work);
    for (auto step = static_cast<std::size_t>(versionOf(work)); step < steps.size(); ++step) {
        for (const std::string& statement : steps.at(step)())
            work.exec0(statement);
    }
    work.exec0("UPDATE chain_version SET version = " + std::to_string(currentVersion));
}

[[noreturn]] void failWithoutRights(const Server& server, bool isThere)
{
    if (isThere) {
        throw ChainError(
            ChainFailure::NoRights,
            u"%1 may not upgrade the schema %2 (%3): let its owner run chain init with this program."_s.arg(
                server.user(), QLatin1StringView(schemaName), server.where()));
    }
    throw ChainError(
        ChainFailure::NoRights,
        u"%1 may not make the schema %2 (%3): let the owner of the database run CREATE SCHEMA %2 "
        "AUTHORIZATION %1, or connect as the owner of the schema."_s.arg(
            server.user(), QLatin1StringView(schemaName), server.where()));
}

void refuseLater(const Server& server, int version)
{
    if (version <= currentVersion)
        return;
    throw ChainError(ChainFailure::Unfit,
                     u"The schema %1 has version %2 and this program knows versions up to %3 (%4): a later "
                     "program made it, so publish with that one."_s.arg(QLatin1StringView(schemaName))
                         .arg(version)
                         .arg(currentVersion)
                         .arg(server.where()));
}

/// @param isThere whether there is an older one.
void upgrade(Server& server, bool isThere)
{
    try {
        server.transact(takeSteps);
    } catch (const ChainError& error) {
        if (error.failure() == ChainFailure::NoRights)
            failWithoutRights(server, isThere);
        throw;
    }
}

} // namespace

void lockSchema(pqxx::work& work)
{
    work.exec1("SELECT pg_advisory_xact_lock(" + std::to_string(lockFamily) + ", 0)");
}

void prepareSchema(Server& server)
{
    const int version = installedVersion(server);
    refuseLater(server, version);
    if (version != currentVersion)
        upgrade(server, version >= 0);
    makeMonthsAhead(server);
}

bool isSchemaCurrent(Server& server)
{
    const int version = installedVersion(server);
    refuseLater(server, version);
    if (version >= 0 && version < currentVersion) {
        throw ChainError(ChainFailure::Unfit,
                         u"The schema %1 is of a former program (%2): a publication upgrades it first."_s.arg(
                             QLatin1StringView(schemaName), server.where()));
    }
    return version == currentVersion;
}

} // namespace norvane::chain
