// The shades of a heat map.
#pragma once

#include "reports/data/ReportData.h"

#include <QColor>

namespace norvane::reports
{

/// The column after the last one with a shade: that of the sums has none beside others.
[[nodiscard]] int endOfHeat(const ReportData& table);

/// The largest number with a shade, never below 0. Lines with totals have none.
[[nodiscard]] double largestHeat(const ReportData& table);

/// The background of a number: white for nothing and what is below it, and the darker the larger it is. Black
/// letters remain readable on all of them, on a printer without colours, too.
[[nodiscard]] QColor heatColour(double number, double largest);

} // namespace norvane::reports
