// Lets the user cancel a long run.
#pragma once

#include "reports/data/ReportError.h"

#include <functional>

namespace norvane::reports
{

/// Asked now and then during a long run; it may handle events. @return false to cancel the run.
using KeepGoing = std::function<bool()>;

/// @throws ReportCancelled when @p keepGoing returns false.
inline void needGoOn(const KeepGoing& keepGoing)
{
    if (keepGoing && !keepGoing())
        throw ReportCancelled();
}

} // namespace norvane::reports
