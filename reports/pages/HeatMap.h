// The shades of a heat map.
#pragma once

#include "reports/data/ReportData.h"

#include <QColor>

namespace norvane::reports
{

/// The largest number inside the table, its totals left out: the last column and the last line. Never below
/// 0.
[[nodiscard]] double largestHeat(const ReportData& table);

/// The background of a number: white for nothing and what is below it, and the darker the larger it is. Black
/// letters remain readable on all of them, on a printer without colours, too.
[[nodiscard]] QColor heatColour(double number, double largest);

} // namespace norvane::reports
