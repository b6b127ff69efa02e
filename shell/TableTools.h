// What the tables of records offer in their menu "More".
#pragma once

#include "screens/WindowTool.h"
#include "shell/TableOpeners.h"

namespace norvane::shell
{

/// The tools of the table of the records that @p form shows. Keeps the references except that to @p form.
[[nodiscard]] screens::TableTools makeTableTools(const TableSurroundings& around,
                                                 const screens::OptionForm& form);

/// The safety copies of the customer whose records a screen shows. Keeps the references.
[[nodiscard]] screens::ScreenTool makeCopiesTool(FrmMain& main, const ApplicationValues& values,
                                                 Boxes& boxes);

} // namespace norvane::shell
