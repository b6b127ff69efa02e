// See ReportOpeners.h.
#include "shell/ReportOpeners.h"

#include "base/CustomerSettings.h"
#include "reports/window/Report.h"
#include "sales/Frmreports.h"
#include "sales/MoreReports.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::shell
{
namespace
{

/// Entries and handlers are named alike: "PLUSalesByDate" and "PLUSalesByDate_Click".
const sales::ReportEntry& reportOf(const MenuEntry& entry)
{
    const QString handler = entry.name + u"_Click"_s;
    const auto entries = sales::reportEntries();
    const auto found =
        std::ranges::find_if(entries, [&handler](const auto& each) { return each.handler == handler; });
    Q_ASSERT(found != entries.end());
    return *found;
}

} // namespace

FrmMain::FormOpeners makeReportOpeners(ApplicationValues& values, Boxes& boxes)
{
    FrmMain::FormOpeners openers;
    openers.insert(u"Frmreports"_s, [&values, &boxes](FrmMain& main, const MenuEntry& entry) {
        sales::showReport(reportOf(entry), values, boxes, &main, reports::runReport);
    });
    openers.insert(u"MoreReports"_s, [&values, &boxes](FrmMain& main, const MenuEntry&) {
        sales::MoreReports(values, boxes, reports::runReport, &main).exec();
    });
    return openers;
}

ScreenReports::ScreenReports(FrmMain& main, const ApplicationValues& values, Boxes& boxes)
    : m_main(main), m_values(values), m_boxes(boxes)
{
}

void ScreenReports::run(const screens::TableReport& request)
{
    reports::ReportRequest whole;
    whole.reportFile = request.reportFile;
    whole.dataFile = request.database;
    whole.windowTitle = request.title;
    whole.customer = customerOf(m_values, request.database);
    reports::Report(m_main, m_boxes).run(std::move(whole));
}

} // namespace norvane::shell
