// Sizes of letters and widths of lines, in mm, and colours of all pages. They are readable in black and white
// too.
#pragma once

#include "reports/pages/PageFont.h"

namespace norvane::reports
{

inline const TextStyle titleStyle{5.2, true};
inline const TextStyle subtitleStyle{3.3, false};
inline const TextStyle subtitleBoldStyle{3.3, true};
inline const TextStyle noticeStyle{4.2, true};
inline const TextStyle chartTitleStyle{4.0, true};
inline const TextStyle chartStyle{3.0, false};

/// Height of a row in headings, as a multiple of the letters' size.
inline constexpr double headingPitch = 1.35;

/// Above and below the headings of columns, in mm.
inline constexpr double columnHeadingPadding = 1.2;

inline constexpr double hairline = 0.1;
inline constexpr double thinLine = 0.2;
inline constexpr double thickLine = 0.5;

namespace ink
{
inline constexpr QColor line{0xb4, 0xba, 0xc0}; ///< between lines
inline constexpr QColor rule{0x30, 0x38, 0x40}; ///< around headings and totals
inline constexpr QColor band{0xec, 0xef, 0xf2}; ///< background of group headings and grand totals
inline constexpr QColor bar{0x2f, 0x5d, 0x82};  ///< of charts; a dark grey on a printer without colours
inline constexpr QColor pale{0x5a, 0x63, 0x6c}; ///< of words that explain
} // namespace ink

} // namespace norvane::reports
