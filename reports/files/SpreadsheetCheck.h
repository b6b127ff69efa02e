// Checks that a spreadsheet was written to its end. The library that writes it makes the sheet in a temporary
// file and does not notice when that file does not fit on the disk.
#pragma once

#include <QByteArray>

namespace norvane::reports
{

/// @param path as QFile::encodeName() gives it. @return whether the file holds its one sheet to the end.
[[nodiscard]] bool isWholeSpreadsheet(const QByteArray& path);

} // namespace norvane::reports
