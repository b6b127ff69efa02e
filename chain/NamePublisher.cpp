// See NamePublisher.h.
#include "chain/NamePublisher.h"

#include "chain/CopyStream.h"
#include "chain/NameCheck.h"
#include "chain/Rollups.h"
#include "chain/SourceRows.h"

#include <map>
#include <vector>

namespace norvane::chain
{
namespace
{

class NamePublisher
{
public:
    NamePublisher(Server& server, pqxx::work& work, store::Database& database, int shop,
                  const NameOptions& options)
        : m_server(server), m_work(work), m_database(database), m_shop(shop), m_options(options)
    {
        for (const auto& row : work.exec_params(
                 "SELECT table_name, digest, row_count FROM published_names WHERE shop = $1", shop))
            m_known[row[0].c_str()] = {row[1].c_str(), row[2].as<qint64>()};
    }

    PublishedNames publish()
    {
        for (const NameTable* const table : different())
            replace(*table);
        return m_found;
    }

    PublishedNames preview()
    {
        (void)different();
        return m_found;
    }

private:
    /// The tables to be published.
    std::vector<const NameTable*> different()
    {
        std::vector<const NameTable*> all;
        for (const auto& table : nameTables()) {
            const RowsDigest read = readNames(m_database, table);
            const auto known = m_known.find(table.name);
            if (isEmptied(read, known)) {
                m_found.vanished << QLatin1StringView(table.name);
                if (!m_options.mayEmpty)
                    continue;
            }
            if (known == m_known.end() || known->second.digest != read.digest || hasOtherRows(table))
                all.push_back(&table);
        }
        return all;
    }

    using Known = std::map<std::string, RowsDigest>;

    [[nodiscard]] bool isEmptied(const RowsDigest& read, Known::const_iterator known) const
    {
        return read.rows == 0 && known != m_known.end() && known->second.rows > 0;
    }

    bool hasOtherRows(const NameTable& table)
    {
        if (!m_options.comparesRows)
            return false;
        const QString difference = nameDifference(m_work, m_database, table, m_shop);
        if (!difference.isEmpty())
            m_found.differences << difference;
        return !difference.isEmpty();
    }

    void replace(const NameTable& table)
    {
        const bool hasGroups = std::string_view(table.name) == "plus";
        const std::string former = hasGroups ? groupsOfPlus() : "";
        m_work.exec_params0("DELETE FROM " + std::string(table.name) + " WHERE shop = $1", m_shop);
        auto columns = columnsOf(table);
        columns.insert(columns.begin(), "shop");
        CopyStream stream(m_server, m_work, table.name, columns);
        stream.setLeading(std::to_string(m_shop) + '\t');
        const RowsDigest copied =
            readNames(m_database, table, [&stream](const std::string& line) { stream.add(line); });
        stream.complete();
        note(table, copied);
        if (hasGroups && former != groupsOfPlus())
            rollUpGroups(m_work, m_shop);
    }

    /// Changes when a PLU goes to another group; a price does not matter.
    std::string groupsOfPlus()
    {
        return m_work
            .exec_params1("SELECT coalesce(md5(string_agg(plu || ' ' || coalesce(group_no, -1), ',' ORDER BY "
                          "plu)), '') FROM plus WHERE shop = $1",
                          m_shop)[0]
            .as<std::string>();
    }

    /// Deleted and inserted: on a cluster an upsert takes no function such as that of the default.
    void note(const NameTable& table, const RowsDigest& copied)
    {
        m_work.exec_params0("DELETE FROM published_names WHERE shop = $1 AND table_name = $2", m_shop,
                            std::string(table.name));
        m_work.exec_params0("INSERT INTO published_names (shop, table_name, digest, row_count) "
                            "VALUES ($1, $2, $3, $4)",
                            m_shop, std::string(table.name), copied.digest, copied.rows);
    }

    Server& m_server;
    pqxx::work& m_work;
    store::Database& m_database;
    int m_shop;
    const NameOptions& m_options;
    Known m_known; ///< by the name of the table
    PublishedNames m_found;
};

} // namespace

PublishedNames publishNames(Server& server, store::Database& database, int shop, const ShopLock& lock,
                            const NameOptions& options)
{
    PublishedNames published;
    server.transact([&](pqxx::work& work) {
        lock.holdIn(work);
        published = NamePublisher(server, work, database, shop, options).publish();
    });
    return published;
}

PublishedNames previewNames(Server& server, store::Database& database, int shop, const NameOptions& options)
{
    PublishedNames found;
    server.transact(
        [&](pqxx::work& work) { found = NamePublisher(server, work, database, shop, options).preview(); });
    return found;
}

} // namespace norvane::chain
