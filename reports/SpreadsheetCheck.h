// Whether a spreadsheet was written to its end. The library that writes it goes by a temporary file and does
// not notice when that one does not fit on the disk.
#pragma once

#include <QByteArray>

namespace norvane::reports
{

/// @return whether all sheets of the file at @p path, in the file system's own spelling, are whole.
[[nodiscard]] bool isWholeSpreadsheet(const QByteArray& path);

} // namespace norvane::reports
