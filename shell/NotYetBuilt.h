// The menu entries whose form or procedure is still to be written.
#pragma once

#include <QLatin1StringView>

#include <span>

namespace norvane::shell
{

/// Entries that can be chosen but open nothing yet, as README lists them. Remove the row when the part is
/// written.
[[nodiscard]] std::span<const QLatin1StringView> notYetBuilt();

/// Whether @p entry is one of these control names.
[[nodiscard]] bool isNotYetBuilt(QLatin1StringView entry);

} // namespace norvane::shell
