// The files of overlay documents: seven lines for each cell, Windows-1252, CR LF, and nothing else.
#pragma once

#include "overlay/Document.h"

namespace norvane::overlay
{

/// Reads all cells in order; lines beyond the last cell are ignored, so that any larger keyboard's file can
/// be read too.
/// @throws RuntimeFailure with Failure::InputPastEnd if the file ends first; Failure::TypeMismatch or
/// Failure::Overflow for a colour, size, bold or italic value that is invalid, Failure::TextTooLong for a
/// line too long for a cell, Failure::FileNotFound or Failure::PathOrFileAccess if it cannot be read. Cells
/// read before the failure remain in @p document.
void readDocument(const QString& path, Document& document);

/// Writes beside @p path and then replaces the old file, which remains intact on any failure. Line breaks in
/// texts become blanks, and characters that are not in Windows-1252 question marks.
/// @throws RuntimeFailure with Failure::PathOrFileAccess if it cannot be written there, Failure::DiskFull if
/// the disk is full.
void writeDocument(const QString& path, const Document& document);

} // namespace norvane::overlay
