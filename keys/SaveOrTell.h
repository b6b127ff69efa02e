// The message shown when an editor could not save.
#pragma once

#include "platform/Boxes.h"

#include <functional>

namespace norvane::keys
{

/// Runs @p save, which stores all or nothing. When that fails, a box says why and what to do, and the editor
/// goes on with what the user has changed.
/// @return whether it was saved.
[[nodiscard]] bool saveOrTell(Boxes& boxes, const std::function<void()>& save);

} // namespace norvane::keys
