// What all open windows with records have in common: they follow the file, and Ctrl+Z works in them.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "store/engine/WorkHistory.h"

namespace norvane::shell
{

class FrmMain;

/// Shows records as they now are in the file, in all open screens and tables. What the user has typed and
/// not saved remains.
void refreshRecords(const FrmMain& main);

/// Undoes the latest stored work, as undoLatestWork(), and shows the result in all windows.
void undoStored(FrmMain& main, const ApplicationValues& values, Boxes& boxes, store::WorkHistory& history);

} // namespace norvane::shell
