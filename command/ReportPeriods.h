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

/// The periods of the report in the file @p path: "day", "week", "month" and "year" to date, and the complete
/// ones before today, such as "lastmonth".
/// @return an empty list for a layout without days, such as a list of records.
/// @throws ReportError for a faulty layout.
[[nodiscard]] QStringList periodsOf(const QString& path);

/// The selection of a report and a period by its word, seen from @p today. Heading and formula are those of
/// the menu for a period that the menu has; the heading of a layout that it does not use is empty.
/// @throws CommandError Usage for a report without that period; the text lists its periods. ReportError for
/// a faulty layout.
[[nodiscard]] ReportSelection selectionOfPeriod(const QString& path, const QString& period, QDate today);

/// The same for days from one to another.
[[nodiscard]] ReportSelection selectionOfDays(const QString& path, const reports::Period& days);

} // namespace norvane::command
