// Runs a report: makes its lines from a layout file, the customer's database and a selection.
#pragma once

#include "reports/ReportData.h"

#include <QString>

#include <functional>
#include <stdexcept>

namespace norvane::reports
{

/// Thrown when a report cannot be made, printed or saved. The text is shown in a box "Report Error", and the
/// program continues.
class ReportError : public std::runtime_error
{
public:
    /// @param text names the file and the reason.
    explicit ReportError(const QString& text) : std::runtime_error(text.toStdString()), m_text(text) {}
    [[nodiscard]] const QString& text() const { return m_text; }

private:
    QString m_text;
};

/// The user cancelled the run. No box is shown.
class ReportCancelled : public ReportError
{
public:
    ReportCancelled() : ReportError(QStringLiteral("The report was cancelled.")) {}
};

/// A file that a report should go to cannot be written.
class TargetError : public ReportError
{
public:
    using ReportError::ReportError;
};

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
};

/// Asked now and then during a long run; it may handle events. @return false to cancel the run.
using KeepGoing = std::function<bool()>;

/// @throws ReportCancelled when @p keepGoing returns false.
inline void needGoOn(const KeepGoing& keepGoing)
{
    if (keepGoing && !keepGoing())
        throw ReportCancelled();
}

/// @return the report. When no row is selected, its heading has a notice that says so.
/// @throws ReportError for a layout, formula, database or number that is not as it should be, and
/// ReportCancelled when @p keepGoing returns false.
[[nodiscard]] ReportData runReport(const ReportRequest& request, const KeepGoing& keepGoing = {});

} // namespace norvane::reports
