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
    // Key editors.
    "KeyboardLocation"_L1, "FunctionMenu"_L1, "WLUMenu"_L1,
    // Sales reports.
    "PLUSalesByDate"_L1, "PLUSalesWeekTodate"_L1, "PLUSalesMonthTodate"_L1, "PLUSalesYearToDate"_L1,
    "FinDate"_L1, "Finweek"_L1, "FinMonth"_L1, "FinYear"_L1,
    "ClerkDate"_L1, "clerkweek"_L1, "Clerkmonth"_L1, "Clerkyear"_L1,
    "TimeByDate"_L1, "TimeWeek"_L1, "TimeMonth"_L1, "TimeYear"_L1,
    "MixDate"_L1, "MixWeek"_L1, "MixMonth"_L1, "Mixyear"_L1,
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
