// Runs a report: its layout file, the customer's database and a selection become lines.
#pragma once

#include "reports/ReportData.h"

#include <QString>

#include <functional>
#include <stdexcept>

namespace norvane::reports
{

/// What the engine could not do: it shows the text in its own box ("Report Error"), and the program goes on.
class ReportError : public std::runtime_error
{
public:
    /// @param text names the file and the reason.
    explicit ReportError(const QString& text) : std::runtime_error(text.toStdString()), m_text(text) {}
    [[nodiscard]] const QString& text() const { return m_text; }

private:
    QString m_text;
};

/// The run was given up on the user's wish, of which no box need tell.
class ReportCancelled : public ReportError
{
public:
    ReportCancelled() : ReportError(QStringLiteral("The report was cancelled.")) {}
};

/// What a report is run over.
struct ReportRequest {
    QString reportFile;       ///< path of the layout; found without regard to case
    QString dataFile;         ///< path of the customer's database
    QString reportTitle;      ///< heading on the pages; empty for the layout's own
    QString windowTitle;      ///< of the preview; empty for the report's title
    QString selectionFormula; ///< empty for all rows
    QString customer;
    QDateTime now;                                          ///< the moment of the run: periods end on its day
    std::function<void(const QString& step)> showStep = {}; ///< told of work that the report waits for
};

/// Asked now and then while a long run works; it may handle events. @return false to give up.
using KeepGoing = std::function<bool()>;

/// @throws ReportCancelled when @p keepGoing gives up.
inline void needGoOn(const KeepGoing& keepGoing)
{
    if (keepGoing && !keepGoing())
        throw ReportCancelled();
}

/// @return the report; one of no rows carries a notice that says so.
/// @throws ReportError for a layout, formula, database or number that is not as it should be, and
/// ReportCancelled when @p keepGoing gives up.
[[nodiscard]] ReportData runReport(const ReportRequest& request, const KeepGoing& keepGoing = {});

} // namespace norvane::reports
