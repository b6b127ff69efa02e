// The forms of the frame itself behind the menu: setup, about, change of customer, exit.
#pragma once

#include "shell/FrmMain.h"

namespace norvane::shell
{

/// The references are kept and must outlive the main window.
[[nodiscard]] FrmMain::Openers makeFrameOpeners(ApplicationValues& values, Boxes& boxes);

} // namespace norvane::shell
