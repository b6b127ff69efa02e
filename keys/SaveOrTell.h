// The message shown when an editor could not save.
#pragma once

#include "platform/Boxes.h"

#include <functional>

namespace norvane::keys
{

/// Runs @p save, which stores all or nothing. If that fails, a box says why and what to do, and the editor
/// keeps the user's changes.
/// @return whether it was saved.
[[nodiscard]] bool saveOrTell(Boxes& boxes, const std::function<void()>& save);

} // namespace norvane::keys
