// Lets the user cancel a long report.
#pragma once

#include "platform/KeepGoing.h"
#include "reports/data/ReportError.h"

namespace norvane::reports
{

/// @throws ReportCancelled when @p keepGoing returns false.
inline void needGoOn(const KeepGoing& keepGoing)
{
    if (keepGoing && !keepGoing())
        throw ReportCancelled();
}

} // namespace norvane::reports
