// See NamePublisher.h.
#include "chain/NamePublisher.h"

#include "chain/CopyStream.h"
#include "chain/Rollups.h"
#include "chain/SourceRows.h"

namespace norvane::chain
{
namespace
{

class NamePublisher
{
public:
    NamePublisher(const Server& server, pqxx::work& work, store::Database& database, int shop)
        : m_server(server), m_work(work), m_database(database), m_shop(shop)
    {
    }

    /// @return false when the table is empty in the shop and was not emptied.
    bool publish(const NameTable& table, bool mayEmpty)
    {
        const RowsDigest read = readNames(m_database, table);
        const auto known = published(table);
        if (isEmptied(read, known) && !mayEmpty)
            return false;
        if (known.empty() || known[0][0].as<std::string>() != read.digest)
            replace(table);
        return true;
    }

    bool isEmptied(const NameTable& table)
    {
        return isEmptied(readNames(m_database, table), published(table));
    }

private:
    static bool isEmptied(const RowsDigest& read, const pqxx::result& known)
    {
        return read.rows == 0 && !known.empty() && known[0][1].as<qint64>() > 0;
    }
    pqxx::result published(const NameTable& table)
    {
        return m_work.exec_params(
            "SELECT digest, row_count FROM published_names WHERE shop = $1 AND table_name = $2", m_shop,
            std::string(table.name));
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

    const Server& m_server;
    pqxx::work& m_work;
    store::Database& m_database;
    int m_shop;
};

} // namespace

QStringList publishNames(Server& server, store::Database& database, int shop, const ShopLock& lock,
                         bool mayEmpty)
{
    QStringList spared;
    server.transact([&](pqxx::work& work) {
        lock.holdIn(work);
        NamePublisher publisher(server, work, database, shop);
        for (const auto& table : nameTables()) {
            if (!publisher.publish(table, mayEmpty))
                spared << QLatin1StringView(table.name);
        }
    });
    return spared;
}

QStringList vanishedNames(Server& server, store::Database& database, int shop)
{
    QStringList emptied;
    server.transact([&](pqxx::work& work) {
        NamePublisher publisher(server, work, database, shop);
        for (const auto& table : nameTables()) {
            if (publisher.isEmptied(table))
                emptied << QLatin1StringView(table.name);
        }
    });
    return emptied;
}

} // namespace norvane::chain
