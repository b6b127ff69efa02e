// What is remembered with an overlay document, in a file beside it: the document's own format has no room.
#pragma once

#include "overlay/Document.h"

namespace norvane::overlay
{

/// "tea.Velmar.notes" for "tea.Velmar".
[[nodiscard]] QString notesPath(const QString& documentPath);

/// An initialisation file: [Overlay] with Keyboard and Level, and for each group with colours a section such
/// as [Group 3] with BackGround and TextColour, numbered as in the document.
/// @return empty notes if there is no file, or one of another keyboard. Entries that are not numbers are left
/// out.
[[nodiscard]] DocumentNotes readNotes(const QString& documentPath, Keyboard keyboard);

/// Replaces the file. A document without notes has none.
/// @throws RuntimeFailure with Failure::PathOrFileAccess or Failure::DiskFull.
void writeNotes(const QString& documentPath, const Document& document);

} // namespace norvane::overlay
