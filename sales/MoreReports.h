// The reports that the menu does not have.
#pragma once

#include "base/ApplicationValues.h"
#include "reports/window/Report.h"
#include "sales/OtherReports.h"

#include <QDialog>

class QTreeWidget;
class QVBoxLayout;

namespace norvane
{
class Boxes;
}

namespace norvane::sales
{

class PeriodChooser;

/// Lists the layouts with title, description and period, and runs the chosen one over a period. A copy of
/// one, or one of the shop's own, opens in the system's editor beside a preview that follows it. The dialog
/// remains open.
class MoreReports : public QDialog
{
    Q_OBJECT

public:
    /// @param values must outlive the dialog; it reports on the database in use.
    MoreReports(const ApplicationValues& values, Boxes& boxes, reports::Runner runner,
                QWidget* parent = nullptr);

protected:
    /// Lists the layouts again: an editor may have changed them while it was in front.
    void changeEvent(QEvent* event) override;

private:
    void fillList();
    void layOut();
    void addButtons(QVBoxLayout& column);
    void showReports(std::vector<OtherReport> reports, const QString& chosenPath);
    void showChoice();
    [[nodiscard]] const OtherReport* chosen() const;
    [[nodiscard]] reports::ReportRequest requestOf(const OtherReport& report) const;
    void run(reports::Destination destination);
    void copyAndOpen();
    void openLayout();

    const ApplicationValues& m_values;
    Boxes& m_boxes;
    reports::Report m_report;
    std::vector<OtherReport> m_reports;
    QTreeWidget* m_list;
    PeriodChooser* m_period;
    QPushButton* m_copy;
    QPushButton* m_open;
    QPushButton* m_show;
    QPushButton* m_print;
};

} // namespace norvane::sales
