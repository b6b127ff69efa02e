// Whether the chain has the sums that a shop has, without trusting the digests of days.
#pragma once

#include "chain/Server.h"
#include "store/engine/Database.h"

#include <QDate>

#include <vector>

namespace norvane::chain
{

/// A day of which a table adds up to something else in the chain.
struct DayDifference {
    QDate day;
    QString text; ///< "2026-02-05: value1 of plu_sales is 40 in the shop and 37.02 in the chain."
};

/// Compares the sums of every day that is published and in the shop, column by column; the first that differs
/// is reported. Days that are kept as they were are left out.
/// @throws RuntimeFailure as the customer's database reports, also for a sum that is not finite.
[[nodiscard]] std::vector<DayDifference> differentDays(Server& server, store::Database& database, int shop);

/// The months of a shop whose totals are not those of its days in the chain.
[[nodiscard]] std::vector<QDate> wrongMonths(Server& server, int shop);

} // namespace norvane::chain
