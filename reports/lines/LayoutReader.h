// Reader of layout files (.rpt).
#pragma once

#include "reports/lines/LayoutMistake.h"
#include "reports/lines/ReportLayout.h"

namespace norvane::reports
{

/// Reads a layout and checks all of it: names of tables and fields against the catalogue, keys, formats and
/// expressions. The file is found without regard to case.
/// @throws LayoutError for the first mistake, with line, section, key and what was expected; ReportError
/// without a file.
[[nodiscard]] ReportLayout readLayout(const QString& path);

/// All mistakes of a layout: misspelled names, and of each section the first value that cannot be read. What
/// follows from a missing table or join is not looked at. @throws ReportError without a file.
[[nodiscard]] std::vector<LayoutMistake> layoutMistakes(const QString& path);

} // namespace norvane::reports
