// The dialog of every report of the menu.
#pragma once

#include "base/ApplicationValues.h"
#include "reports/window/Report.h"
#include "sales/ReportEntries.h"

#include <QDialog>

class QCalendarWidget;
class QRadioButton;

namespace norvane
{
class Boxes;
}

namespace norvane::sales
{

/// Asks for a target and, depending on the application's report mode, for a day. It remains open, so that a
/// report can be generated for further days or printed again. Enter generates, Escape leaves.
class Frmreports : public QDialog
{
    Q_OBJECT

public:
    /// Shows the calendar at today, as the current report mode requires. @p values must outlive the dialog.
    /// @param request what the dialog runs; it sets the day and the name of the shop.
    Frmreports(const ApplicationValues& values, Boxes& boxes, reports::ReportRequest request,
               reports::Runner runner, QWidget* parent = nullptr);

private:
    void layOut();
    void colourDays();
    [[nodiscard]] QWidget* makeTargets();
    void loadForm();
    void tellDay();
    void generate();

    const ApplicationValues& m_values;
    reports::ReportRequest m_request;
    reports::Report Report1;
    QCalendarWidget* CSCal;
    QRadioButton* Option1;
};

/// Sets the report mode of @p values, opens the dialog for @p entry over the database in use and returns when
/// the user leaves it.
void showReport(const ReportEntry& entry, ApplicationValues& values, Boxes& boxes, QWidget* parent,
                const reports::Runner& runner);

} // namespace norvane::sales
