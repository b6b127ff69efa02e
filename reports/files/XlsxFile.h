// Saves a report as a spreadsheet: every line and total with the figures of the preview. The file is written
// under another name first and then renamed, so that an existing file is kept if the disk is full or the user
// cancels.
#pragma once

#include "reports/data/KeepGoing.h"
#include "reports/data/ReportData.h"

namespace norvane::reports
{

/// An .xlsx file. Numbers and days are stored as such, so that a spreadsheet can calculate with them. Texts
/// remain texts, whatever their first character and number of digits.
/// @throws ReportError with file and reason when it cannot be written, and ReportCancelled.
void writeXlsx(const ReportData& report, const QString& path, const KeepGoing& keepGoing = {});

} // namespace norvane::reports
