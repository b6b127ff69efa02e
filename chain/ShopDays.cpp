// See ShopDays.h.
#include "chain/ShopDays.h"

#include "chain/ChainTables.h"
#include "chain/SourceRows.h"
#include "platform/RuntimeFailure.h"
#include "store/engine/CommitOnExit.h"
#include "store/sales/DayDigests.h"

#include <QCryptographicHash>

#include <algorithm>
#include <iterator>

namespace norvane::chain
{
namespace
{

/// The digest of a table without sales of the day.
constexpr const char* noRows = "-";

QDate dayOf(const pqxx::field& field)
{
    return QDate::fromString(QString::fromUtf8(field.c_str()), Qt::ISODate);
}

Decimal numberOf(const std::string& text)
{
    return Decimal::tryParse(text).value_or(Decimal());
}

bool isSame(const PublishedDay& published, const std::string& digest)
{
    if (published.digest == digest)
        return true;
    return published.isKept && (!published.keptDigest || *published.keptDigest == digest);
}

} // namespace

PublishedDays publishedDays(Server& server, int shop)
{
    PublishedDays days;
    server.transact([&](pqxx::work& work) {
        for (const auto& row : work.exec_params(
                 "SELECT to_char(day, 'YYYY-MM-DD'), digest, kept, kept_digest, coalesce(quantity, 0), "
                 "coalesce(net_sales, 0) FROM published_days WHERE shop = $1",
                 shop)) {
            PublishedDay day{row[1].as<std::string>(), row[2].as<bool>()};
            if (!row[3].is_null())
                day.keptDigest = row[3].as<std::string>();
            day.quantity = numberOf(row[4].c_str());
            day.netSales = numberOf(row[5].c_str());
            days[dayOf(row[0])] = day;
        }
    });
    return days;
}

ShopDays::ShopDays(store::Database& database)
    : m_database(database), m_version(store::DayDigests::changesByOthers(database)),
      m_new(salesTables().size())
{
    for (std::size_t table = 0; table < salesTables().size(); ++table)
        read(table);
}

void ShopDays::read(std::size_t table)
{
    const auto& source = salesTables()[table];
    const auto stored = store::DayDigests(m_database, QLatin1StringView(source.source)).stored();
    for (const QDate day : daysOf(m_database, source)) {
        auto& digests = m_digests.try_emplace(day, salesTables().size(), noRows).first->second;
        const auto known = stored.find(day);
        digests[table] = known != stored.end() && isCurrentDigest(known->second) ? known->second : "";
    }
}

QList<QDate> ShopDays::days() const
{
    QList<QDate> all;
    for (const auto& [day, digests] : m_digests)
        all << day;
    return all;
}

std::string ShopDays::digestOf(QDate day)
{
    std::string all;
    const auto& digests = m_digests.at(day);
    for (std::size_t table = 0; table < digests.size(); ++table) {
        if (digests[table].empty())
            setDigest(day, table, readDay(m_database, salesTables()[table], day).digest);
        all += digests[table] + ' ';
    }
    return QCryptographicHash::hash(QByteArrayView(all), QCryptographicHash::Blake2b_160)
        .toHex()
        .toStdString();
}

std::string ShopDays::digestIfSound(QDate day)
{
    try {
        return digestOf(day);
    } catch (const ChainError& error) {
        if (error.failure() != ChainFailure::BadRows)
            throw;
        return {};
    }
}

bool ShopDays::hasLess(QDate day, const PublishedDay& published) const
{
    Decimal quantity;
    Decimal netSales;
    for (const auto& table : salesTables()) {
        if (table.totalled == Totalled::No)
            continue;
        const auto totals = readDay(m_database, table, day).totals.value_or(DayTotals{"0", "0"});
        if (table.totalled == Totalled::EveryRow) {
            quantity = numberOf(totals.quantity);
        } else {
            netSales = numberOf(totals.value);
        }
    }
    return quantity < published.quantity || netSales < published.netSales;
}

void ShopDays::setDigest(QDate day, std::size_t table, const std::string& digest)
{
    std::string& known = m_digests.at(day).at(table);
    if (known == noRows || known == digest)
        return;
    known = digest;
    m_new.at(table)[day] = digest;
}

void ShopDays::keep()
{
    // Without a digest to keep, a transaction would only wait for readers of the sales.
    if (std::ranges::all_of(m_new, [](const auto& digests) { return digests.empty(); }))
        return;
    try {
        store::CommitOnExit transaction(m_database);
        // A row that was changed after it was read has dropped the former digest: it must not get it back.
        if (store::DayDigests::changesByOthers(m_database) == m_version)
            keepNew();
        transaction.commit();
    } catch (const RuntimeFailure&) {
        // They only save time.
    }
    for (auto& digests : m_new)
        digests.clear();
}

void ShopDays::keepNew()
{
    for (std::size_t table = 0; table < m_new.size(); ++table)
        store::DayDigests(m_database, QLatin1StringView(salesTables()[table].source)).keep(m_new[table]);
}

DayComparison compareDays(ShopDays& days, const PublishedDays& published)
{
    DayComparison comparison;
    for (const QDate day : days.days()) {
        const auto known = published.find(day);
        if (known == published.end()) {
            comparison.missing << day;
        } else if (isSame(known->second, days.digestIfSound(day))) {
            ++comparison.same;
        } else {
            comparison.changed << day;
        }
    }
    for (const auto& [day, content] : published) {
        if (!content.isKept && !days.has(day))
            comparison.vanished << day;
    }
    return comparison;
}

QList<QDate> takeHeldBack(const ShopDays& days, DayComparison& comparison, const PublishedDays& published,
                          Vanished vanished)
{
    const auto isHeldBack = [&](QDate day) {
        return vanished == Vanished::Ask || days.hasLess(day, published.at(day));
    };
    QList<QDate> heldBack;
    std::ranges::copy_if(comparison.changed, std::back_inserter(heldBack), isHeldBack);
    comparison.changed.removeIf([&](QDate day) { return heldBack.contains(day); });
    return heldBack;
}

} // namespace norvane::chain
