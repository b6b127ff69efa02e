// Posts tickets to the totals of the five reports.
#pragma once

#include "tools/bank/Totals.h"
#include "tools/ringsales/Day.h"

namespace bank
{

/// All reports follow from the tickets: values of the PLUs, of the time periods, net sales of the clerks and
/// of the financial report have the same sum.
void post(const Ticket& ticket, Totals& totals);

} // namespace bank
