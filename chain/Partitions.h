// The months of the sales tables.
#pragma once

#include "chain/Server.h"

#include <QDate>

#include <string>
#include <vector>

namespace norvane::chain
{

/// The function make_month, which makes the partitions of a month. It has the rights of the schema's owner,
/// so that a role that may only write its own shop gets its months: those of the last twelve years.
[[nodiscard]] std::vector<std::string> partitionFunctions();

/// @throws ChainError BadRows for a day of another century: each month is a table for all shops.
void requireChainDay(QDate day);

/// Makes the partitions that hold the month of @p day, unless they are there. A partition that was made by
/// one shop serves all. Readers and writers do not wait for it, and it does not wait for them.
/// @throws ChainError BadRows as requireChainDay() does, also for a month that the user may not make.
void makePartitions(Server& server, QDate day);

/// Makes those of the coming months, so that the first day of a month finds its own. A server where that has
/// to wait is left alone until the next time.
void makeMonthsAhead(Server& server);

} // namespace norvane::chain
