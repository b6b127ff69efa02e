// Monthly totals beside the days, so that years of a chain are added up quickly.
#pragma once

#include "chain/Server.h"

#include <QDate>

#include <string>
#include <vector>

namespace norvane::chain
{

/// The statements that make the tables of totals, one row for each month and item of a shop, and their
/// indexes. Publications rewrite the months that they change, in the same transaction, so a total always is
/// that of its days.
[[nodiscard]] std::vector<std::string> rollupStatements();

/// "shop_months" and so on.
[[nodiscard]] std::vector<std::string> rollupNames();

/// Quantity and takings of a row of plu_sales, over all price levels. Most are sold at the first one only,
/// and comparing with 0 takes a third of the time of adding.
inline constexpr const char* pluQuantity =
    "CASE WHEN count2 = 0 AND count3 = 0 AND count4 = 0 AND count5 = 0 THEN count1 "
    "ELSE count1 + count2 + count3 + count4 + count5 END";
inline constexpr const char* pluTakings =
    "CASE WHEN value2 = 0 AND value3 = 0 AND value4 = 0 AND value5 = 0 THEN value1 "
    "ELSE value1 + value2 + value3 + value4 + value5 END";

/// Adds up a month of a shop again.
void rollUp(pqxx::work& work, int shop, QDate month);
/// Whether sales of the day are published, and so are part of the totals of its month.
[[nodiscard]] bool isInTotals(pqxx::work& work, int shop, QDate day);
/// Adds a day that was not in the totals: a nightly publication does not read the whole month again.
void addDay(pqxx::work& work, int shop, QDate day);
/// The groups of all months, after PLUs have changed their groups.
void rollUpGroups(pqxx::work& work, int shop);

/// Brings months into the present form that a former program published: totals of each day, no rows of
/// nothing but zeros, roll-ups.
void convertMonth(pqxx::work& work, int shop, QDate month);
/// The months of a shop of which that is left to do.
[[nodiscard]] std::vector<QDate> formerMonths(pqxx::work& work, int shop);

/// All months in which a shop has published a day.
[[nodiscard]] std::vector<QDate> monthsOf(pqxx::work& work, int shop);
/// Whether the totals of a month, those of its days included, are what the sales add up to.
[[nodiscard]] bool isRolledUp(pqxx::work& work, int shop, QDate month);

} // namespace norvane::chain
