// The days of a period on which the shop collected its sales.
#pragma once

#include "reports/formula/Period.h"
#include "store/engine/Database.h"

#include <functional>
#include <optional>
#include <set>
#include <vector>

namespace norvane::reports
{

/// The part of a period in which sales can be expected: from the shop's first collection on, and up to
/// yesterday or, once it is collected, today.
struct SalesDays {
    QDate first;
    QDate last;
    std::vector<QDate> missing; ///< days from first to last without a row in any table of sales
};

/// The days of @p period with a row in any table of sales, and the last such day before it, or else the first
/// of all up to its end.
/// @param period not open. @throws RuntimeFailure as the database reports.
[[nodiscard]] std::set<QDate> daysWithLast(store::Database& database, const Period& period,
                                           const std::function<bool()>& keepGoing = {});

/// The days of @p period, which is not open, with a row in any table of sales.
/// @throws RuntimeFailure as the database reports.
[[nodiscard]] std::set<QDate> collectedDays(store::Database& database, const Period& period,
                                            const std::function<bool()>& keepGoing = {});

/// @param period not open. @return nothing when no day of the period can be expected to have sales.
/// @throws RuntimeFailure as the database reports.
[[nodiscard]] std::optional<SalesDays> salesDays(store::Database& database, const Period& period, QDate today,
                                                 const std::function<bool()>& keepGoing);

/// "Sun 01/11/2026, Sun 08/11/2026 to Tue 10/11/2026": days that follow each other are put together, and
/// after @p most such entries comes "and 7 more days".
[[nodiscard]] QString textOfDays(const std::vector<QDate>& days, std::size_t most);

} // namespace norvane::reports
