// What a menu entry opens for the customer's register model, and whether it may open now.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "shell/MenuTree.h"

namespace norvane::shell
{

/// The screen file ("\PLU.scn") or form name that @p entry opens. Reads the register model from the
/// customer's settings each time it is needed.
/// @throws RuntimeFailure with Failure::TypeMismatch if the model is needed and is not a number.
[[nodiscard]] QString targetOf(const MenuEntry& entry, const ApplicationValues& values);

/// Whether @p entry may open. A gated screen does not open with older firmware or an empty table; a box says
/// why.
/// @throws RuntimeFailure with Failure::FileNotFound or Failure::Overflow for the memory file (see
/// GetFirmwareGeneration), and as the store throws.
[[nodiscard]] bool mayOpen(const MenuEntry& entry, const ApplicationValues& values, Boxes& boxes);

} // namespace norvane::shell
