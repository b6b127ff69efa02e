// Openers of the menus Utilities and N&V Image.
#pragma once

#include "shell/FrmMain.h"
#include "store/engine/WorkHistory.h"

#include <memory>

namespace norvane::shell
{

/// By handler name ("TransferEuro_Click"). Keeps the references, which must outlive the main window. Price
/// changes can be undone from @p history.
[[nodiscard]] FrmMain::FormOpeners makeUtilityOpeners(const ApplicationValues& values, Boxes& boxes,
                                                      const std::shared_ptr<store::WorkHistory>& history);

} // namespace norvane::shell
