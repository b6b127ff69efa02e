// "Export..." and "Import..." of the table of a screen's records.
#pragma once

#include "screens/WindowTool.h"
#include "shell/TableOpeners.h"

namespace norvane::shell
{

/// Export writes the rows that are shown, in their order and columns: as CSV or spreadsheet what is stored,
/// so that the file can be imported again, as PDF what the table shows. Import compares a file with all
/// records of the table, not only with those that are shown. Keeps the references.
[[nodiscard]] screens::TableTools makeFileTools(const TableSurroundings& around);

} // namespace norvane::shell
