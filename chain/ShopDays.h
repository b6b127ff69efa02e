// The days of a shop, and which of them differ from what is published.
#pragma once

#include "chain/Server.h"
#include "platform/Decimal.h"
#include "store/engine/Database.h"

#include <QDate>
#include <QList>

#include <map>
#include <optional>
#include <string>

namespace norvane::chain
{

/// What to do with published days that the shop no longer has.
enum class Vanished {
    Ask,   ///< they remain, and the next publication reports them again
    Keep,  ///< they remain and are no longer reported, until the shop has something else of such a day
    Remove ///< they are deleted
};

/// A day as it is published.
struct PublishedDay {
    std::string digest;
    bool isKept = false; ///< the shop lost it, or a part of it, and the user wants to keep it
    /// What the shop had of a kept day when that was decided; a day of a former program has none.
    std::optional<std::string> keptDigest{};
    Decimal quantity{};
    Decimal netSales{};
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
    /// @throws ChainError, RuntimeFailure as readDay() does.
    [[nodiscard]] std::string digestOf(QDate day);
    /// The same; empty for a day with rows that cannot be published.
    [[nodiscard]] std::string digestIfSound(QDate day);
    /// Whether the shop sold less on the day than is published: a part of it vanished.
    [[nodiscard]] bool hasLess(QDate day, const PublishedDay& published) const;
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

/// Takes out of the changed days those that remain as published because others vanished: all of them until
/// the user has decided, and only those of which a part vanished if the vanished ones are kept.
[[nodiscard]] QList<QDate> takeHeldBack(const ShopDays& days, DayComparison& comparison,
                                        const PublishedDays& published, Vanished vanished);

} // namespace norvane::chain
