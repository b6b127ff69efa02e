// What the print button of a screen asks for.
#pragma once

#include <QString>

namespace norvane::screens
{

/// The report that a print button runs.
struct TableReport {
    QString reportFile; ///< path of the layout
    QString title;      ///< of the report's window
    QString database;   ///< path of the database that the report reads, as stored
};

/// Shows a report over a whole table.
class ReportRunner
{
public:
    ReportRunner() = default;
    ReportRunner(const ReportRunner&) = delete;
    ReportRunner& operator=(const ReportRunner&) = delete;
    virtual ~ReportRunner() = default;

    virtual void run(const TableReport& request) = 0;
};

} // namespace norvane::screens
