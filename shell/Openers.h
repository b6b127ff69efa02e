// What stands behind the menu entries: every form of the program that there is.
#pragma once

#include "shell/FrmMain.h"

namespace norvane::shell
{

/// The openers for the main window. The references are kept and must outlive it.
[[nodiscard]] FrmMain::Openers makeOpeners(ApplicationValues& values, Boxes& boxes);

} // namespace norvane::shell
