// Lets the user cancel long work.
#pragma once

#include "platform/RuntimeFailure.h"

#include <functional>

namespace norvane
{

/// Asked now and then during long work; it may handle events, or throw to end the work with a failure of its
/// own. @return false to cancel.
using KeepGoing = std::function<bool()>;

/// @throws RuntimeFailure with Failure::UserInterrupt when @p keepGoing returns false.
inline void stopUnless(const KeepGoing& keepGoing)
{
    if (keepGoing && !keepGoing())
        throw RuntimeFailure(Failure::UserInterrupt, QStringLiteral("The work was cancelled."));
}

} // namespace norvane
