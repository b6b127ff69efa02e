// A register as it leaves the factory, set up as a shop that a dealer might show.
#pragma once

#include "tools/bank/Bank.h"

namespace bank
{

/// The four kinds of register that a customer may have, as the setup dialog numbers them.
struct Kind {
    Model model;
    int generation;
    bool cards;
};

/// @param index 0 to 3. @throws std::out_of_range
[[nodiscard]] const Kind& kindOf(int index);

/// Writes all files of @p target again.
/// @param kindIndex 0 to 3, the kind that it is
/// @param plus number of PLUs, 0 for the shop's own range
/// @throws std::runtime_error, ToolFailure
void fillRegister(const Register& target, int kindIndex, int plus);

} // namespace bank
