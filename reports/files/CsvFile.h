// Saves a report as CSV: every line and total with the figures of the preview. The file is written under
// another name first and then renamed, so that an existing file is kept if the disk is full or the user
// cancels.
#pragma once

#include "reports/data/KeepGoing.h"
#include "reports/data/ReportData.h"

namespace norvane::reports
{

/// What separates the values of a CSV file, and the decimal sign of its numbers.
struct CsvSigns {
    char separator = ',';
    char decimal = '.';
};
/// What spreadsheets expect on the user's system: its decimal sign, and between the values commas, or
/// semicolons where the decimal sign is a comma.
[[nodiscard]] CsvSigns csvSignsOfLocale();

/// A text that a spreadsheet opens at a double click: UTF-8 with a byte order mark and csvSignsOfLocale().
/// The first line holds the headings.
/// @throws ReportError with file and reason when it cannot be written, and ReportCancelled.
void writeCsv(const ReportData& report, const QString& path, const KeepGoing& keepGoing = {});
/// The same with other signs.
void writeCsvWith(const CsvSigns& signs, const ReportData& report, const QString& path,
                  const KeepGoing& keepGoing = {});

} // namespace norvane::reports
