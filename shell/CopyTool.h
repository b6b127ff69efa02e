// "Copy to Other Customers..." in the menu "More" of a screen.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "screens/WindowTool.h"
#include "shell/FrmMain.h"

namespace norvane::shell
{

/// Keeps the references, which must outlive the main window.
[[nodiscard]] screens::ScreenTool makeCopyTool(FrmMain& main, const ApplicationValues& values, Boxes& boxes);

} // namespace norvane::shell
