// Reader of layout files (.rpt).
#pragma once

#include "reports/lines/ReportLayout.h"

namespace norvane::reports
{

/// Reads a layout and checks all of it: names of tables and fields against the catalogue, keys, formats and
/// expressions. The file is found without regard to case.
/// @throws ReportError which names the file, and for a mistake in it the section, the key and what was
/// expected.
[[nodiscard]] ReportLayout readLayout(const QString& path);

} // namespace norvane::reports
