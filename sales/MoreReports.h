// The reports that the menu does not have.
#pragma once

#include "base/ApplicationValues.h"
#include "reports/window/Report.h"
#include "sales/OtherReports.h"

#include <QDialog>

class QTreeWidget;

namespace norvane
{
class Boxes;
}

namespace norvane::sales
{

class PeriodChooser;

/// Lists the layouts with title and description and runs the chosen one over a period. It remains open.
class MoreReports : public QDialog
{
    Q_OBJECT

public:
    /// @param values must outlive the dialog; it reports on the database in use.
    MoreReports(const ApplicationValues& values, Boxes& boxes, reports::Runner runner,
                QWidget* parent = nullptr);

private:
    void fillList();
    void layOut();
    void showChoice();
    [[nodiscard]] const OtherReport* chosen() const;
    void run(reports::Destination destination);

    const ApplicationValues& m_values;
    reports::Report m_report;
    std::vector<OtherReport> m_reports;
    QTreeWidget* m_list;
    PeriodChooser* m_period;
    QPushButton* m_show;
    QPushButton* m_print;
};

} // namespace norvane::sales
