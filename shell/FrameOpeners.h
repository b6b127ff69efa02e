// Openers of the entries Exit, Setup, Change Customer File and About.
#pragma once

#include "shell/FrmMain.h"

namespace norvane::shell
{

/// Keeps the references, which must outlive the main window.
[[nodiscard]] FrmMain::FormOpeners makeFrameOpeners(ApplicationValues& values, Boxes& boxes);

} // namespace norvane::shell
