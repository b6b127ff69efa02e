// Finds texts of a window that a user cannot read: cut, covered by others, too pale.
#pragma once

#include <QImage>
#include <QStringList>

class QWidget;

namespace norvane::windows
{

/// Least contrast of a text to its ground: that of the web's rules for accessible contents (1.4.3).
inline constexpr double leastContrast = 4.5;

/// Measures every text in view of @p window, which must be shown, and @p picture, which is its grab(). The
/// room of a text is what the style leaves it, less what its parents cut away where they cannot be scrolled.
/// Combos are measured by their longest entry, boxes by the longest content that is known. A text may be cut
/// if its tool tip shows it completely, such as a customer's name in the status bar.
/// @return a line for each fault: the control, its text, what is wrong. Empty when all can be read.
[[nodiscard]] QStringList unreadableTexts(const QWidget& window, const QImage& picture);

} // namespace norvane::windows
