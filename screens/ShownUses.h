// The uses of a record for the button that shows them.
#pragma once

#include "screens/KeyUses.h"
#include "ui/UsesButton.h"

namespace norvane::screens
{

[[nodiscard]] inline std::optional<ui::Uses> shownUses(const std::optional<KeyUses>& uses)
{
    return uses ? std::optional(ui::Uses{uses->count, uses->first}) : std::nullopt;
}

} // namespace norvane::screens
