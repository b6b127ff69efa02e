// Spreadsheets in the format XLSX as text.
#pragma once

#include "platform/KeepGoing.h"

#include <QByteArray>
#include <QString>

namespace norvane::articles
{

/// What a cell of the text begins with that holds neither text nor number; the reason follows.
inline constexpr char unfitMark = '\x01';
/// Between the cells of the text.
inline constexpr char spreadsheetSeparator = '\t';

/// Whether the file @p path is or should be a spreadsheet, by its name or its first bytes.
[[nodiscard]] bool isSpreadsheet(const QString& path);

/// The first sheet of the file as CSV with spreadsheetSeparator: a line for each row that is not empty, of
/// which the first cell is the number of the row. Cells after the last filled one of a row are missing.
/// Numbers have the digits of the file and a point; a formula counts by its stored result, and of merged
/// cells the first one.
/// @throws SpreadsheetError when the file is damaged, encrypted or too large, and RuntimeFailure with
/// Failure::UserInterrupt when @p keepGoing returns false.
[[nodiscard]] QByteArray spreadsheetText(const QString& path, const KeepGoing& keepGoing = {});

} // namespace norvane::articles
