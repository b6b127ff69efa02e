// Makes the reports of a window while it remains painted.
#pragma once

#include "reports/lines/ReportRun.h"

#include <functional>
#include <optional>

class QWidget;

namespace norvane
{
class Boxes;
}

namespace norvane::reports
{

/// What makes a report's lines: runReport() of the engine.
using Runner = std::function<ReportData(const ReportRequest&, const KeepGoing&)>;

/// Makes the report of @p request; @p window shows its steps, and a box with a cancel button once it takes
/// long.
/// @return nothing if the user cancelled.
/// @throws ReportError and RuntimeFailure, as the runner does.
[[nodiscard]] std::optional<ReportData> makeReport(const Runner& runner, ReportRequest request,
                                                   QWidget& window);

/// Does @p act, and shows a failure of a report or of the store in a box "Report Error".
void withReportBox(Boxes& boxes, const std::function<void()>& act);

} // namespace norvane::reports
