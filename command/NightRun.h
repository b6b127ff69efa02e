// A night of many shops, one after another.
#pragma once

#include "command/Night.h"
#include "command/NightClock.h"
#include "command/Workplace.h"

#include <functional>

namespace norvane::command
{

/// Called at the end of each attempt at a shop. @p isLast when it is not tried again.
using ShopEnded = std::function<void(const ShopNight& shop, bool isLast)>;

/// All @p names once, then those again that may go better, as often as the options say.
/// @return in the order of the names; each customer once. @throws RuntimeFailure with Failure::UserInterrupt
/// after a signal.
void runNight(const Workplace& workplace, const QStringList& names, const NightOptions& options,
              const NightClock& clock, const ShopEnded& ended, std::vector<ShopNight>& results);

} // namespace norvane::command
