// The shares and classes of lines: which articles make the first 80 per cent of the takings.
#pragma once

#include "reports/lines/ReportLayout.h"
#include "reports/lines/TextTemplate.h"

#include <QString>

#include <optional>
#include <vector>

namespace norvane::reports
{

/// What is shown where there is no share.
inline constexpr QStringView noRank{u"–"};

/// The place of a line among all lines. Shares are per cents of the sum of all lines; there are none if that
/// is not above zero or has more digits than a Decimal holds.
struct LineRank {
    std::optional<Decimal> share;
    std::optional<Decimal> cumulated; ///< the line's share and those of all before it
    QString letter = noRank.toString();
    int linesOfClass = 0;
};

/// Sorts @p lines by the number of the classes, the largest first; lines with equal numbers keep their order.
/// A line is in class A while those before it have less than the first limit of the sum, in B while they have
/// less than the second, and so on. Lines with equal numbers are in one class, that of the first of them;
/// numbers of zero and below are always in the last.
/// @param layout has classes. @return the ranks in the new order.
[[nodiscard]] std::vector<LineRank> rankLines(const ReportLayout& layout, std::vector<LineFields>& lines);

/// The share of the numbers of some lines in those of the whole report, in per cent.
[[nodiscard]] std::optional<Decimal> shareOf(const ClassLayout& classes, const SlotNumbers& numbers);

} // namespace norvane::reports
