// Carries an order out against the bank.
#pragma once

#include "tools/bank/Bank.h"
#include "tools/bank/FaultList.h"
#include "tools/velmarcomm/Order.h"

namespace bank
{

/// @param fault the bank's fault file's entry for this step
/// @return the result for status.out; @throws ToolFailure with any other
[[nodiscard]] int carryOut(const Order& order, const Bank& bank, const std::optional<Fault>& fault);

} // namespace bank
