// For tests with real widgets: an application without a screen whose outermost handler keeps a failure for
// the test to look at, where the program would show it and end.
#pragma once

#include "platform/RuntimeFailure.h"

#include <optional>

namespace norvane::test
{

/// Takes the failure that reached the outermost handler since the last call, if any.
std::optional<RuntimeFailure> takeFailure();

} // namespace norvane::test
