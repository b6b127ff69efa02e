// The dialog of every report of the menu.
#pragma once

#include "base/ApplicationValues.h"
#include "reports/window/Report.h"
#include "sales/ReportEntries.h"

#include <QDialog>

#include <set>

class QCalendarWidget;
class QLabel;
class QRadioButton;
class QVBoxLayout;

namespace norvane
{
class Boxes;
}

namespace norvane::sales
{

class PeriodChooser;

/// Asks for a target, for a period and, depending on the application's report mode, for a day. It remains
/// open, so that a report can be generated for further days or printed again. Enter generates, Escape leaves.
class Frmreports : public QDialog
{
    Q_OBJECT

public:
    /// Shows the calendar at today, as the current report mode requires.
    /// @param values, entry must outlive the dialog; it reports on the database in use.
    Frmreports(const ApplicationValues& values, Boxes& boxes, const ReportEntry& entry,
               reports::Runner runner, QWidget* parent = nullptr);

private:
    void layOut();
    void addPeriods(QVBoxLayout& column);
    void colourDays();
    void markDaysOfSales();
    [[nodiscard]] QWidget* makeTargets();
    void loadForm();
    void announceDay();
    void generate();

    const ApplicationValues& m_values;
    Boxes& m_boxes;
    reports::Runner m_runner;
    const ReportEntry& m_entry;
    reports::ReportRequest m_request; ///< of the menu entry
    reports::Report Report1;
    QCalendarWidget* CSCal;
    QLabel* m_legend;                  ///< of the calendar
    std::set<QDate> m_daysOfSales;     ///< of the month in the calendar
    PeriodChooser* m_period = nullptr; ///< nullptr for the price list
    QRadioButton* Option1;
};

/// Sets the report mode of @p values, opens the dialog for @p entry over the database in use and returns when
/// the user leaves it.
void showReport(const ReportEntry& entry, ApplicationValues& values, Boxes& boxes, QWidget* parent,
                const reports::Runner& runner);

} // namespace norvane::sales
