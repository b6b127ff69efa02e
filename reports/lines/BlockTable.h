// The table of one block of a summary, made from the lines of its layout.
#pragma once

#include "reports/data/ReportData.h"
#include "reports/lines/BlockLayout.h"

namespace norvane::reports
{

/// The lines of @p data that @p block shows: sorted, cut and with their shares. The first column has the
/// texts of a line, the others its numbers. What is cut off is one more line, "and 7 more", with its sums.
/// @param data the lines of the block's layout, of one period or compared.
[[nodiscard]] ReportData blockTable(const ReportData& data, const BlockLayout& block);

/// One line, called @p title, with the sum of the last number of @p data: zero if there are no lines.
[[nodiscard]] ReportData figureOf(const ReportData& data, const QString& title);

/// One line with the quotient of two figures: a dash where the second one is zero.
/// @param number how the quotient is shown.
[[nodiscard]] ReportData quotientOf(const ReportData& first, const ReportData& second, const QString& title,
                                    ReportColumn number);

/// Lines of a day, a text and a number, added up by text and day of the week: a line for each text, a column
/// for each day of the week that @p from to @p to has, if these are several, and one for their sum.
[[nodiscard]] ReportData weekTable(const ReportData& data, QDate from, QDate to);

/// One line with @p days as a text.
[[nodiscard]] ReportData daysTable(const std::vector<QDate>& days);

} // namespace norvane::reports
