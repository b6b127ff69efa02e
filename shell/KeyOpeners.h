// Openers of the key editors.
#pragma once

#include "shell/FrmMain.h"
#include "store/engine/WorkHistory.h"

#include <memory>

namespace norvane::shell
{

/// By form name ("KeyLayoutVelmar"). Keeps the references, which must outlive the main window. What is stored
/// on the screen of an article that a keyboard opened can be undone from @p history.
[[nodiscard]] FrmMain::FormOpeners makeKeyOpeners(ApplicationValues& values, Boxes& boxes,
                                                  const std::shared_ptr<store::WorkHistory>& history);

} // namespace norvane::shell
