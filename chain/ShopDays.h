// The days of a shop, and which of them differ from what is published.
#pragma once

#include "chain/Server.h"
#include "store/engine/Database.h"

#include <QDate>
#include <QList>

#include <map>
#include <string>

namespace norvane::chain
{

/// A day as it is published.
struct PublishedDay {
    std::string digest;
    bool isKept = false; ///< the user wants to keep it as it is
};
using PublishedDays = std::map<QDate, PublishedDay>;

[[nodiscard]] PublishedDays publishedDays(Server& server, int shop);

/// The days in any sales table of a customer. Each day is compared by a digest that is stored beside the
/// sales and dropped with any change of them, so that years are compared without reading them.
class ShopDays
{
public:
    explicit ShopDays(store::Database& database);

    [[nodiscard]] bool has(QDate day) const { return m_digests.contains(day); }
    [[nodiscard]] QList<QDate> days() const;
    /// Reads the rows of tables that have no digest of the day, and keeps it.
    /// @throws RuntimeFailure as readDay() does.
    [[nodiscard]] std::string digestOf(QDate day);
    /// What was just read of a day, by the order of salesTables().
    void setDigest(QDate day, std::size_t table, const std::string& digest);
    /// Writes the digests that are new beside the sales. Writes none if the file has changed since this
    /// object was created or cannot be written: the next run then reads these days again.
    void keep();

private:
    void read(std::size_t table);
    void keepNew();

    store::Database& m_database;
    std::int64_t m_version; ///< of the file before anything was read
    /// One for each table; empty if it is not known.
    std::map<QDate, std::vector<std::string>> m_digests;
    std::vector<std::map<QDate, std::string>> m_new; ///< by table
};

/// What is to be done about the days of a shop.
struct DayComparison {
    QList<QDate> missing; ///< not published yet
    QList<QDate> changed;
    QList<QDate> vanished; ///< published, and no longer in the shop
    int same = 0;
};

[[nodiscard]] DayComparison compareDays(ShopDays& days, const PublishedDays& published);

} // namespace norvane::chain
