// Openers of the menus Utilities and N&V Image.
#pragma once

#include "shell/FrmMain.h"

namespace norvane::shell
{

/// By handler name ("TransferEuro_Click"). Keeps the references, which must outlive the main window.
[[nodiscard]] FrmMain::FormOpeners makeUtilityOpeners(const ApplicationValues& values, Boxes& boxes);

} // namespace norvane::shell
