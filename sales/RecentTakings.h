// What a shop took on each of the last days, for those who look at it every day.
#pragma once

#include "platform/Decimal.h"
#include "store/engine/Database.h"

#include <QDate>
#include <QString>

#include <optional>
#include <vector>

namespace norvane::sales
{

/// A day, and its net sales of all registers.
struct DayTakings {
    QDate day;
    std::optional<Decimal> netSales; ///< 0 if the day was collected without any; nothing if it was not
    QString shown;                   ///< as reports show them, "£1,234.50"; empty if it was not collected
};

struct RecentTakings {
    std::vector<DayTakings> days; ///< all of them, the latest last
    QDate lastCollected;          ///< also one before these days; invalid before the first collection
};

/// The @p count days up to @p today, from the line of the financial report that its chart draws, too. Reads
/// these days only, however many years of sales there are.
/// @throws RuntimeFailure as the database reports; with Failure::Overflow for a sum of more than 18 digits.
[[nodiscard]] RecentTakings recentTakings(store::Database& database, QDate today, int count = 7);

} // namespace norvane::sales
