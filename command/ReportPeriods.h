// Words of the command line for the periods of the reports in the menu.
#pragma once

#include "sales/ReportEntries.h"

#include <QLatin1StringView>
#include <QString>
#include <QStringList>

namespace norvane::command
{

/// The period that is one day.
inline constexpr QLatin1StringView dayPeriod("day");

/// The periods of the report @p name ("plusales") in the menu: "day", "week", "month", "year".
/// @return an empty list for a layout that the menu does not use.
[[nodiscard]] QStringList periodsOf(const QString& name);

/// The menu entry for a report and a period.
/// @throws CommandError Usage for a report without that period; the text lists its periods.
[[nodiscard]] const sales::ReportEntry& entryOfPeriod(const QString& name, const QString& period);

} // namespace norvane::command
