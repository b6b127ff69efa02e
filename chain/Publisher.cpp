// See Publisher.h.
#include "chain/Publisher.h"

#include "chain/ChainSchema.h"
#include "chain/CopyStream.h"
#include "chain/NamePublisher.h"
#include "chain/SourceRows.h"
#include "platform/Dates.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::chain
{
namespace
{

/// Days as PostgreSQL reads an array of them.
std::string arrayOf(const QList<QDate>& days)
{
    QStringList all;
    for (const QDate day : days)
        all << day.toString(Qt::ISODate);
    return u"{%1}"_s.arg(all.join(u',')).toStdString();
}

/// The days of each month together.
QList<QList<QDate>> monthsOf(QList<QDate> days)
{
    std::ranges::sort(days);
    QList<QList<QDate>> months;
    for (const QDate day : days) {
        if (months.isEmpty() || !isSameMonth(months.last().last(), day))
            months.append(QList<QDate>());
        months.last().append(day);
    }
    return months;
}

class ShopPublisher
{
public:
    ShopPublisher(Server& server, const ShopFolder& folder, const PublishOptions& options)
        : m_server(server), m_options(options), m_shop(findShop(server, folder, options.adopt)),
          m_lock(server, m_shop, folder.name), m_database(folder.databasePath)
    {
    }

    Published publish();

private:
    void settleVanished(DayComparison& comparison);
    void keepAsPublished(const QList<QDate>& days);
    void publishMonth(const QList<QDate>& days);
    void removeDays(pqxx::work& work, const QList<QDate>& days) const;
    void copyTable(pqxx::work& work, std::size_t table, const QList<QDate>& days,
                   std::map<QDate, qint64>& rows);
    void noteDays(pqxx::work& work, const std::map<QDate, qint64>& rows);

    Server& m_server;
    const PublishOptions& m_options;
    int m_shop;
    ShopLock m_lock;
    store::Database m_database;
    std::optional<ShopDays> m_days;
    Published m_published;
};

Published ShopPublisher::publish()
{
    m_published.vanishedNames =
        publishNames(m_server, m_database, m_shop, m_lock, m_options.vanished == Vanished::Remove);
    m_days.emplace(m_database);
    DayComparison comparison = compareDays(*m_days, publishedDays(m_server, m_shop));
    m_days->keep();
    m_published.same = comparison.same;
    m_published.vanished = comparison.vanished;
    settleVanished(comparison);
    for (const auto& days : monthsOf(comparison.missing + comparison.changed))
        publishMonth(days);
    return m_published;
}

void ShopPublisher::settleVanished(DayComparison& comparison)
{
    if (comparison.vanished.isEmpty())
        return;
    if (m_options.vanished == Vanished::Remove) {
        m_server.transact([&](pqxx::work& work) {
            m_lock.holdIn(work);
            removeDays(work, comparison.vanished);
        });
        return;
    }
    if (m_options.vanished == Vanished::Keep)
        keepAsPublished(comparison.vanished + comparison.changed);
    m_published.heldBack = static_cast<int>(comparison.changed.size());
    comparison.changed.clear();
}

void ShopPublisher::keepAsPublished(const QList<QDate>& days)
{
    m_server.transact([&](pqxx::work& work) {
        m_lock.holdIn(work);
        work.exec_params0("UPDATE published_days SET kept = true WHERE shop = $1 AND day = ANY($2::date[])",
                          m_shop, arrayOf(days));
    });
}

void ShopPublisher::publishMonth(const QList<QDate>& days)
{
    if (m_options.step)
        m_options.step(u"%1: %2 days"_s.arg(days.first().toString(u"yyyy-MM"_s)).arg(days.size()));
    makePartitions(m_server, days.first());
    std::map<QDate, qint64> rows;
    for (const QDate day : days)
        rows[day] = 0;
    m_server.transact([&](pqxx::work& work) {
        m_lock.holdIn(work);
        removeDays(work, days);
        for (std::size_t table = 0; table < salesTables().size(); ++table)
            copyTable(work, table, days, rows);
        noteDays(work, rows);
    });
    m_days->keep();
    m_published.days += static_cast<int>(days.size());
    for (const auto& [day, count] : rows)
        m_published.rows += count;
}

void ShopPublisher::removeDays(pqxx::work& work, const QList<QDate>& days) const
{
    const auto remove = [&](const std::string& table) {
        // The range lets the server pass over all other partitions.
        work.exec_params0("DELETE FROM " + table +
                              " WHERE shop = $1 AND day BETWEEN $2 AND $3 AND day = ANY($4::date[])",
                          m_shop, isoDay(days.first()), isoDay(days.last()), arrayOf(days));
    };
    for (const auto& table : salesTables())
        remove(std::string(table.name));
    remove("published_days");
}

/// Sends the days while reading them: they are never all in memory.
void ShopPublisher::copyTable(pqxx::work& work, std::size_t table, const QList<QDate>& days,
                              std::map<QDate, qint64>& rows)
{
    const auto& source = salesTables()[table];
    auto columns = columnsOf(source);
    columns.insert(columns.begin(), {"shop", "day"});
    CopyStream stream(m_server, work, source.name, columns);
    for (const QDate day : days) {
        stream.setLeading(std::to_string(m_shop) + '\t' + isoDay(day) + '\t');
        const RowsDigest read =
            readDay(m_database, source, day, [&stream](const std::string& line) { stream.add(line); });
        m_days->setDigest(day, table, read.digest);
        rows[day] += read.rows;
    }
    stream.complete();
}

void ShopPublisher::noteDays(pqxx::work& work, const std::map<QDate, qint64>& rows)
{
    for (const auto& [day, count] : rows) {
        work.exec_params0("INSERT INTO published_days (shop, day, digest, row_count) VALUES ($1, $2, $3, $4)",
                          m_shop, isoDay(day), m_days->digestOf(day), count);
    }
}

} // namespace

Published publishShop(Server& server, const ShopFolder& folder, const PublishOptions& options)
{
    return ShopPublisher(server, folder, options).publish();
}

} // namespace norvane::chain
