// The list of entries; see NotYetBuilt.h.
#include "shell/NotYetBuilt.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

// clang-format off
constexpr auto entries = std::to_array<QLatin1StringView>({
    // Keyboard overlays.
    "Velmarkeyboard"_L1, "DorvikKeyboard"_L1, "Quelmontkeyboard"_L1,
});
// clang-format on

} // namespace

std::span<const QLatin1StringView> notYetBuilt()
{
    return entries;
}

bool isNotYetBuilt(QLatin1StringView entry)
{
    return std::ranges::find(entries, entry) != entries.end();
}

} // namespace norvane::shell
