// Openers of the menu Keyboards.
#pragma once

#include "shell/FrmMain.h"

namespace norvane::shell
{

/// By form name ("Dorvik"). Keeps the references, which must outlive the main window.
[[nodiscard]] FrmMain::FormOpeners makeOverlayOpeners(const ApplicationValues& values, Boxes& boxes);

} // namespace norvane::shell
