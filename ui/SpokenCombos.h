// What screen readers learn of combo boxes: label, value, rows.
#pragma once

namespace norvane::ui
{

/// Gives every combo box of the program an interface to screen readers that is named by the label, has the
/// value as its text and the rows as its items, and says each change of the value while it has the focus. The
/// toolkit's own has the value for its name and keeps silent about changes.
void speakCombos();

} // namespace norvane::ui
