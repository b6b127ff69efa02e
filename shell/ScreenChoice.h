// What a menu entry opens for the register model at hand, and whether it may open now.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "shell/MenuTree.h"

namespace norvane::shell
{

/// The screen file ("\PLU.scn") or form name that @p entry opens. The register model is read afresh from the
/// customer's settings where it decides.
/// @throws RuntimeFailure 13 when the model is needed and is no number.
[[nodiscard]] QString targetOf(const MenuEntry& entry, const ApplicationValues& values);

/// Whether the screen of a gated entry may open: not on older firmware, nor on an empty table. Says why not.
/// Any other entry may.
/// @throws RuntimeFailure 53 or 6 for the memory file (see GetFirmwareGeneration), and the store's own.
[[nodiscard]] bool mayOpen(const MenuEntry& entry, const ApplicationValues& values, Boxes& boxes);

} // namespace norvane::shell
