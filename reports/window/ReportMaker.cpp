// See ReportMaker.h.
#include "reports/window/ReportMaker.h"

#include "platform/Boxes.h"
#include "platform/RuntimeFailure.h"
#include "reports/data/ReportError.h"
#include "reports/window/RunProgress.h"

using namespace Qt::Literals::StringLiterals;

namespace norvane::reports
{

std::optional<ReportData> makeReport(const Runner& runner, ReportRequest request, QWidget& window)
{
    RunProgress progress(window, u"The report is being made."_s);
    request.showStep = [&progress](const QString& step) {
        progress.showStep(step);
    };
    try {
        return runner(request, [&progress] { return progress.goOn(); });
    } catch (const ReportError&) {
        if (progress.isCancelled())
            return std::nullopt;
        throw;
    }
}

void withReportBox(Boxes& boxes, const std::function<void()>& act)
{
    const auto showError = [&boxes](const QString& text) {
        boxes.message(text, u"Report Error"_s, BoxIcon::Critical);
    };
    try {
        act();
    } catch (const ReportCancelled&) {
        return;
    } catch (const ReportError& error) {
        showError(error.text());
    } catch (const RuntimeFailure& failure) {
        showError(failure.text());
    }
}

} // namespace norvane::reports
