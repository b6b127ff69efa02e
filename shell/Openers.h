// Openers of all menu entries.
#pragma once

#include "shell/FrmMain.h"

namespace norvane::shell
{

/// Keeps the references, which must outlive the main window.
[[nodiscard]] FrmMain::Openers makeOpeners(ApplicationValues& values, Boxes& boxes);

} // namespace norvane::shell
