// Runs a report: makes its lines from a layout file, the customer's database and a selection.
#pragma once

#include "reports/data/KeepGoing.h"
#include "reports/data/ReportData.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace norvane::reports
{

/// The second period of a report, if it has one.
enum class ComparedWith { Nothing, PeriodBefore, YearEarlier };

class RecordCache;

/// What a report is run over.
struct ReportRequest {
    QString reportFile;       ///< path of the layout; found without regard to case
    QString dataFile;         ///< path of the customer's database
    QString reportTitle;      ///< heading on the pages; empty for the layout's own
    QString windowTitle;      ///< of the preview; empty for the report's title
    QString selectionFormula; ///< empty for all rows
    QString customer;
    QDateTime now; ///< the moment of the run: periods end on this day
    /// Called with the name of each step that takes long.
    std::function<void(const QString& step)> showStep = {};
    ComparedWith comparedWith = ComparedWith::Nothing;
    QString programFolder = {};           ///< where links find layouts that are not beside the report's own
    std::vector<LineFilter> filters = {}; ///< of the lines that led here, see LineFilters.h
    std::shared_ptr<RecordCache> records = nullptr; ///< what the reports of a form share; see RecordRows.h
};

/// @return the report. When no row is selected, its heading has a notice that says so.
/// @throws ReportError for a layout or formula with a mistake, a database or number that cannot be used, a
/// comparison of a selection that is more or less than a period or of a layout without a number to compare,
/// and ReportCancelled when @p keepGoing returns false.
[[nodiscard]] ReportData runReport(const ReportRequest& request, const KeepGoing& keepGoing = {});

} // namespace norvane::reports
