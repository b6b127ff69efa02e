// The files of overlay documents: seven lines for each cell, Windows-1252, CR LF, and nothing else.
#pragma once

#include "overlay/Document.h"

namespace norvane::overlay
{

/// Reads all cells in order; lines beyond the last cell are ignored, so that any larger keyboard's file is
/// taken too.
/// @throws RuntimeFailure 62 when the file ends first; 13 or 6 for a colour, size, bold or italic that is
/// none, 3163 for a line that no cell holds, 53 and 75 when it cannot be read. What was read by then stays in
/// @p document.
void readDocument(const QString& path, Document& document);

/// Writes beside @p path and then takes the old file's place, which stays whole whatever happens. Line breaks
/// in texts become blanks, and characters that are not in Windows-1252 question marks.
/// @throws RuntimeFailure 75 when it cannot be written there, 61 when the disk is full.
void writeDocument(const QString& path, const Document& document);

} // namespace norvane::overlay
