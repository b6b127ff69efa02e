// What a shop's nights are set to: night.ini and reports.ini in the program's and the customer's folder.
#pragma once

#include "command/ReportFiles.h"
#include "command/SettingsFile.h"

#include <QDate>
#include <QTime>

#include <vector>

namespace norvane::command
{

/// The word of a period in reports.ini, which means each one that is over.
struct NightPeriod {
    QLatin1StringView word;      ///< "month"
    QLatin1StringView inFormula; ///< the last one before a day: "lastmonth"
    QLatin1StringView label;     ///< how its last day names it in names of files, as QDate formats it
};
[[nodiscard]] std::span<const NightPeriod> nightPeriods();

/// A section of reports.ini: a report that is written for each period that is over.
struct NightReport {
    QString section; ///< a part of the files' names
    QString report;  ///< name of the layout
    const NightPeriod* period = nullptr;
    std::vector<const FileFormat*> formats;
    QString folder; ///< relative to the program's folder, or absolute
    reports::ComparedWith comparedWith = reports::ComparedWith::Nothing;
};

/// Settings of the nights of one shop. Those of the customer's folder take the place of the program's, key by
/// key and report by report.
struct NightSettings {
    /// Until this time, sales count for the day before.
    QTime dayBegins{0, 0};
    QString copies; ///< folder for copies elsewhere; empty for none
    std::vector<NightReport> reports;
    QStringList mistakes;   ///< with file, line and reason; a report with one is left out
    bool isDayKnown = true; ///< false when night.ini has a mistake
};
[[nodiscard]] NightSettings readNightSettings(const QString& appPath, const QString& customerPath);

} // namespace norvane::command
