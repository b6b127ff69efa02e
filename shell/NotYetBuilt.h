// The menu entries whose form or procedure is still to be written.
#pragma once

#include <QLatin1StringView>

#include <span>

namespace norvane::shell
{

/// Control names of the entries that can be chosen but open nothing yet. README lists them too. Who writes
/// the missing part removes the row.
[[nodiscard]] std::span<const QLatin1StringView> notYetBuilt();

/// Whether @p entry is one of these control names.
[[nodiscard]] bool isNotYetBuilt(QLatin1StringView entry);

} // namespace norvane::shell
