// What opens reports: the entries of the menu Reports and the print button of the screens.
#pragma once

#include "screens/ReportRunner.h"
#include "shell/FrmMain.h"

#include <QObject>

namespace norvane::shell
{

/// By form name ("Frmreports"). Keeps the references, which must outlive the main window.
[[nodiscard]] FrmMain::FormOpeners makeReportOpeners(ApplicationValues& values, Boxes& boxes);

/// Shows the report of a screen in a preview above the main window. Belongs to the screen.
class ScreenReports : public QObject, public screens::ReportRunner
{
public:
    ScreenReports(FrmMain& main, const ApplicationValues& values, Boxes& boxes);
    void run(const screens::TableReport& request) override;

private:
    FrmMain& m_main;
    const ApplicationValues& m_values;
    Boxes& m_boxes;
};

} // namespace norvane::shell
