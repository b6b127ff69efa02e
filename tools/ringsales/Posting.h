// Posts tickets to the totals of the five reports.
#pragma once

#include "tools/bank/Totals.h"
#include "tools/ringsales/Day.h"

namespace bank
{

/// Every report follows from the tickets alone: the values of the PLUs, of the time periods, the net sales of
/// the clerks and those of the financial report come to one sum.
void post(const Ticket& ticket, Totals& totals);

} // namespace bank
