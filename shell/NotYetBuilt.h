// Which menu entries stand in the menu but have nothing behind them so far.
#pragma once

#include <QLatin1StringView>

#include <span>

namespace norvane::shell
{

/// Control names of the entries that can be chosen and open nothing, because their form or procedure does not
/// exist yet. README's list is written from this one. Whoever adds the missing part takes the row out.
[[nodiscard]] std::span<const QLatin1StringView> notYetBuilt();

/// Whether the entry of this control name is one of them.
[[nodiscard]] bool isNotYetBuilt(QLatin1StringView entry);

} // namespace norvane::shell
