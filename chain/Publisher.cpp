// See Publisher.h.
#include "chain/Publisher.h"

#include "chain/ChainSchema.h"
#include "chain/CopyStream.h"
#include "chain/NamePublisher.h"
#include "chain/Partitions.h"
#include "chain/Rollups.h"
#include "chain/SourceRows.h"
#include "chain/SumCheck.h"
#include "platform/Dates.h"
#include "platform/RuntimeFailure.h"

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

QDate firstOfMonth(QDate day)
{
    return {day.year(), day.month(), 1};
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

/// What was sent of a day.
struct SentDay {
    qint64 rows = 0;
    DayTotals plus{};       ///< empty if none were collected
    DayTotals financials{}; ///< of the net sales
};
using Sent = std::map<QDate, SentDay>;

/// The rows of a day are at fault; other days can be published all the same.
bool isOfDay(const RuntimeFailure& failure)
{
    return failure.failure() == Failure::Overflow || failure.failure() == Failure::UnknownNameInQuery;
}

/// Days whose sums differ count as changed.
void addDifferentSums(DayComparison& comparison, Published& published, Server& server,
                      store::Database& database, int shop)
{
    for (const auto& [day, text] : differentDays(server, database, shop)) {
        if (comparison.changed.contains(day))
            continue;
        published.differences << text;
        comparison.changed << day;
        --comparison.same;
    }
}

NameOptions nameOptions(const PublishOptions& options)
{
    return {options.vanished == Vanished::Remove, options.comparesSums};
}

void addNames(const PublishedNames& found, const PublishOptions& options, Published& published)
{
    published.differences = found.differences;
    if (options.vanished != Vanished::Remove)
        published.vanishedNames = found.vanished;
}

void addWrongMonths(const std::vector<QDate>& months, Published& published)
{
    for (const QDate month : months) {
        published.differences << u"%1: totals of the month are not those of its days."_s.arg(
            month.toString(u"yyyy-MM"_s));
    }
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
    void convertFormerMonths();
    void convertMonths(const std::vector<QDate>& months);
    void mendMonths();
    void settleVanished(DayComparison& comparison);
    void removeVanished(const QList<QDate>& days);
    void keepAsPublished(const QList<QDate>& days);
    void publishMonth(const QList<QDate>& days);
    void publishOrLeaveOut(QDate day);
    void publishTogether(const QList<QDate>& days);
    void removeDays(pqxx::work& work, const QList<QDate>& days) const;
    void copyTable(pqxx::work& work, std::size_t table, Sent& days);
    void noteDays(pqxx::work& work, const Sent& days);

    Server& m_server;
    const PublishOptions& m_options;
    int m_shop;
    ShopLock m_lock;
    store::Database m_database;
    std::optional<ShopDays> m_days;
    PublishedDays m_publishedDays;
    Published m_published;
};

Published ShopPublisher::publish()
{
    convertFormerMonths();
    addNames(publishNames(m_server, m_database, m_shop, m_lock, nameOptions(m_options)), m_options,
             m_published);
    m_days.emplace(m_database);
    m_publishedDays = publishedDays(m_server, m_shop);
    DayComparison comparison = compareDays(*m_days, m_publishedDays);
    m_days->keep();
    if (m_options.comparesSums)
        addDifferentSums(comparison, m_published, m_server, m_database, m_shop);
    m_published.same = comparison.same;
    m_published.vanished = comparison.vanished;
    if (m_options.comparesSums)
        mendMonths();
    settleVanished(comparison);
    for (const auto& days : monthsOf(comparison.missing + comparison.changed))
        publishMonth(days);
    return m_published;
}

void ShopPublisher::convertFormerMonths()
{
    std::vector<QDate> months;
    m_server.transact([&](pqxx::work& work) { months = formerMonths(work, m_shop); });
    convertMonths(months);
}

void ShopPublisher::convertMonths(const std::vector<QDate>& months)
{
    for (const QDate month : months) {
        m_server.transact([&](pqxx::work& work) {
            m_lock.holdIn(work);
            convertMonth(work, m_shop, month);
        });
    }
}

void ShopPublisher::mendMonths()
{
    const auto months = wrongMonths(m_server, m_shop);
    addWrongMonths(months, m_published);
    convertMonths(months);
}

void ShopPublisher::settleVanished(DayComparison& comparison)
{
    if (comparison.vanished.isEmpty())
        return;
    if (m_options.vanished == Vanished::Remove) {
        removeVanished(comparison.vanished);
        return;
    }
    const QList<QDate> remaining = takeHeldBack(*m_days, comparison, m_publishedDays, m_options.vanished);
    m_published.heldBack = static_cast<int>(remaining.size());
    if (m_options.vanished == Vanished::Keep)
        keepAsPublished(comparison.vanished + remaining);
}

void ShopPublisher::removeVanished(const QList<QDate>& days)
{
    m_server.transact([&](pqxx::work& work) {
        m_lock.holdIn(work);
        removeDays(work, days);
        for (const auto& month : monthsOf(days))
            rollUp(work, m_shop, firstOfMonth(month.first()));
    });
}

void ShopPublisher::keepAsPublished(const QList<QDate>& days)
{
    m_server.transact([&](pqxx::work& work) {
        m_lock.holdIn(work);
        for (const QDate day : days) {
            work.exec_params0(
                "UPDATE published_days SET kept = true, kept_digest = $3 WHERE shop = $1 AND day = $2",
                m_shop, isoDay(day), m_days->has(day) ? m_days->digestIfSound(day) : "");
        }
    });
}

void ShopPublisher::publishMonth(const QList<QDate>& days)
{
    if (m_options.step)
        m_options.step(u"%1: %2 days"_s.arg(days.first().toString(u"yyyy-MM"_s)).arg(days.size()));
    try {
        publishTogether(days);
        return;
    } catch (const ChainError& error) {
        if (error.failure() != ChainFailure::BadRows)
            throw;
    } catch (const RuntimeFailure& failure) {
        if (!isOfDay(failure))
            throw;
    }
    for (const QDate day : days)
        publishOrLeaveOut(day);
}

/// Says which day it is, if the message does not.
void ShopPublisher::publishOrLeaveOut(QDate day)
{
    QString what;
    try {
        publishTogether({day});
        return;
    } catch (const ChainError& error) {
        if (error.failure() != ChainFailure::BadRows)
            throw;
        what = error.text();
    } catch (const RuntimeFailure& failure) {
        if (!isOfDay(failure))
            throw;
        what = failure.text();
    }
    const QString name = day.toString(Qt::ISODate);
    m_published.unsound << (what.contains(name) ? what : name + u": "_s + what);
}

void ShopPublisher::publishTogether(const QList<QDate>& days)
{
    makePartitions(m_server, days.first());
    Sent sent;
    for (const QDate day : days)
        sent[day] = {};
    m_server.transact([&](pqxx::work& work) {
        m_lock.holdIn(work);
        const bool isNewDay = days.size() == 1 && !isInTotals(work, m_shop, days.first());
        removeDays(work, days);
        for (std::size_t table = 0; table < salesTables().size(); ++table)
            copyTable(work, table, sent);
        noteDays(work, sent);
        if (isNewDay) {
            addDay(work, m_shop, days.first());
        } else {
            rollUp(work, m_shop, firstOfMonth(days.first()));
        }
    });
    m_days->keep();
    m_published.days += static_cast<int>(days.size());
    for (const auto& [day, what] : sent)
        m_published.rows += what.rows;
}

void ShopPublisher::removeDays(pqxx::work& work, const QList<QDate>& days) const
{
    // The range lets the server pass over all other partitions.
    const std::string ofDays = " WHERE shop = " + std::to_string(m_shop) + " AND day BETWEEN '" +
                               isoDay(days.first()) + "' AND '" + isoDay(days.last()) + "' AND day = ANY('" +
                               arrayOf(days) + "'::date[]);\n";
    std::string all = "DELETE FROM published_days" + ofDays;
    for (const auto& table : salesTables())
        all += "DELETE FROM " + std::string(table.name) + ofDays;
    work.exec(all);
}

/// Sends the days while reading them: they are never all in memory.
void ShopPublisher::copyTable(pqxx::work& work, std::size_t table, Sent& days)
{
    const auto& source = salesTables()[table];
    auto columns = columnsOf(source);
    columns.insert(columns.begin(), {"shop", "day"});
    CopyStream stream(m_server, work, source.name, columns);
    for (auto& [day, sent] : days) {
        stream.setLeading(std::to_string(m_shop) + '\t' + isoDay(day) + '\t');
        const RowsDigest read =
            readDay(m_database, source, day, [&stream](const std::string& line) { stream.add(line); });
        m_days->setDigest(day, table, read.digest);
        sent.rows += read.rows;
        if (read.totals)
            (source.totalled == Totalled::EveryRow ? sent.plus : sent.financials) = *read.totals;
    }
    stream.complete();
}

void ShopPublisher::noteDays(pqxx::work& work, const Sent& days)
{
    const auto orNull = [](const std::string& number) {
        return number.empty() ? "NULL" : number;
    };
    std::string rows;
    for (const auto& [day, sent] : days) {
        rows += (rows.empty() ? " (" : ", (") + std::to_string(m_shop) + ", '" + isoDay(day) + "', '" +
                m_days->digestOf(day) + "', " + std::to_string(sent.rows) + ", " +
                orNull(sent.plus.quantity) + ", " + orNull(sent.plus.value) + ", " +
                orNull(sent.financials.value) + ", true)";
    }
    work.exec0("INSERT INTO published_days (shop, day, digest, row_count, quantity, takings, net_sales, "
               "rolled_up) VALUES" +
               rows);
}

/// Reads the day as if it were sent.
void addPreviewOf(QDate day, store::Database& database, Published& preview)
{
    try {
        requireChainDay(day);
        qint64 rows = 0;
        for (const auto& table : salesTables())
            rows += readDay(database, table, day).rows;
        ++preview.days;
        preview.rows += rows;
    } catch (const ChainError& error) {
        preview.unsound << error.text();
    }
}

} // namespace

Published publishShop(Server& server, const ShopFolder& folder, const PublishOptions& options)
{
    return ShopPublisher(server, folder, options).publish();
}

Published previewShop(Server& server, const ShopFolder& folder, const PublishOptions& options)
{
    const int shop = isSchemaCurrent(server) ? findPublishedShop(server, folder, options.adopt) : 0;
    store::Database database(folder.databasePath);
    ShopDays days(database);
    const PublishedDays published = shop == 0 ? PublishedDays() : publishedDays(server, shop);
    DayComparison comparison = compareDays(days, published);
    Published preview;
    if (shop != 0)
        addNames(previewNames(server, database, shop, nameOptions(options)), options, preview);
    if (options.comparesSums && shop != 0) {
        addDifferentSums(comparison, preview, server, database, shop);
        addWrongMonths(wrongMonths(server, shop), preview);
    }
    preview.same = comparison.same;
    preview.vanished = comparison.vanished;
    if (!comparison.vanished.isEmpty() && options.vanished != Vanished::Remove) {
        preview.heldBack =
            static_cast<int>(takeHeldBack(days, comparison, published, options.vanished).size());
    }
    for (const QDate day : comparison.missing + comparison.changed)
        addPreviewOf(day, database, preview);
    return preview;
}

} // namespace norvane::chain
