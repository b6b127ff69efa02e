// How the program looks: style, font, colours, spacing, icon. Forms do not set their own.
#pragma once

#include <QColor>
#include <QIcon>
#include <QPalette>
#include <QRect>
#include <QSize>

class QApplication;
class QWidget;

namespace norvane::ui
{

/// Distances in device-independent pixels.
namespace spacing
{
inline constexpr int formMargin = 14; ///< between a form's edge and its content
inline constexpr int groupGap = 12;   ///< between groups of controls
inline constexpr int controlGap = 8;  ///< between neighbouring controls
} // namespace spacing

/// Smallest width of a button in device-independent pixels at the usual font. Buttons of a row look alike.
inline constexpr int buttonWidth = 96;

/// Height in device-independent pixels of the font that forms and screen files are drawn for. Screen files
/// place controls in twips, 15 to the pixel, so texts must be as wide on every platform.
inline constexpr int usualFontPixels = 12;

/// Height of the font in use in device-independent pixels: the usual one, or that of the user's system when
/// it is larger.
[[nodiscard]] int fontPixels();

/// What @p pixels of a form drawn for the usual font are with the font in use. All fixed widths go through
/// it.
[[nodiscard]] int scaled(double pixels);
[[nodiscard]] QSize scaled(QSize size);

namespace colours
{
/// Those of a light and a dark scheme are in the palette. These look the same in both: paper, the register's
/// keys, the icon. What is written on them is written in text or greyedText, never in the palette's.
inline constexpr QColor accent{0x1f, 0x5f, 0x8b};     ///< selections, the icon
inline constexpr QColor accentDark{0x14, 0x3d, 0x5c}; ///< the darker end of the splash
inline constexpr QColor text{0x1c, 0x23, 0x2a};
inline constexpr QColor greyedText{0x8b, 0x95, 0x9e};
inline constexpr QColor linePale{0xd8, 0xde, 0xe4};
/// Cells of a keyboard. Pale, for dark text; each also has a mark of its own shape.
inline constexpr QColor functionKey{0xe3, 0xee, 0xfa};
inline constexpr QColor pluKey{0xe6, 0xf4, 0xe1};
inline constexpr QColor lookUpKey{0xfb, 0xf1, 0xd3};
inline constexpr QColor missingKey{0xfa, 0xdf, 0xdc};
inline constexpr QColor fixedKey{0xd3, 0xd8, 0xdd};
inline constexpr QColor functionMark{0x2b, 0x6c, 0xb0};
inline constexpr QColor pluMark{0x3a, 0x86, 0x2e};
inline constexpr QColor lookUpMark{0xb0, 0x7d, 0x0a};
inline constexpr QColor missingMark{0xc0, 0x35, 0x2b};
inline constexpr QColor found{0xd9, 0x5f, 0x02};       ///< around what a search has found
inline constexpr QColor warning{0xc4, 0x4f, 0x0c};     ///< marks what will not be as it should
inline constexpr QColor warningPale{0xfd, 0xf0, 0xd8}; ///< background of a warning
/// The background of the screens in the main window and of paper.
[[nodiscard]] QColor desktop();
/// Headings, on the palette's window.
[[nodiscard]] QColor heading();
/// @p usual, or the desktop's colour for @p role where that has high contrast.
[[nodiscard]] QColor yielding(const QColor& usual, QPalette::ColorRole role);
} // namespace colours

/// Whether the user's system shows all texts in the strongest contrast. Its colours are in use as they are
/// then.
[[nodiscard]] bool isHighContrast();

/// Gives @p application its style, font, palette and window icon. Once, before the first window. Font size,
/// a dark scheme and a palette of high contrast come from the user's system.
void applyAppearance(QApplication& application);

/// The program's icon, drawn for every size that platforms ask for.
[[nodiscard]] QIcon applicationIcon();

/// Places @p form in the middle of @p frame, but never beyond the frame's upper left corner.
void centreOn(QWidget& form, const QWidget& frame);

/// The part of the screen that @p form may cover with what is inside its frame.
[[nodiscard]] QRect roomOnScreen(const QWidget& form);

/// Gives @p form, a window that was not shown yet, the size @p good and the middle of its screen. It is made
/// smaller where it would not fit with its frame.
void centreOnScreen(QWidget& form, QSize good);

} // namespace norvane::ui
