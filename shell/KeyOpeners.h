// Openers of the key editors.
#pragma once

#include "shell/FrmMain.h"

namespace norvane::shell
{

/// By form name ("KeyLayoutVelmar"). Keeps the references, which must outlive the main window.
[[nodiscard]] FrmMain::FormOpeners makeKeyOpeners(ApplicationValues& values, Boxes& boxes);

} // namespace norvane::shell
