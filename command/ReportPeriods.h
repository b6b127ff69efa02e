// Words of the command line for the periods of the reports in the menu.
#pragma once

#include "reports/formula/Period.h"

#include <QString>
#include <QStringList>

namespace norvane::command
{

/// Heading and selection of a report over a period.
struct ReportSelection {
    QString title;
    QString formula;
};

/// The periods of the report @p name ("plusales"): "day", "week", "month" and "year" to date as in the menu,
/// and the complete ones before today, such as "lastmonth".
/// @return an empty list for a layout that the menu does not use.
[[nodiscard]] QStringList periodsOf(const QString& name);

/// The selection of a report and a period by its word, seen from @p today.
/// @throws CommandError Usage for a report without that period; the text lists its periods.
[[nodiscard]] ReportSelection selectionOfPeriod(const QString& name, const QString& period, QDate today);

/// The same for days from one to another.
[[nodiscard]] ReportSelection selectionOfDays(const QString& name, const reports::Period& days);

} // namespace norvane::command
