// Which period a report covers, and which one it is compared with.
#pragma once

#include "reports/lines/ReportRun.h"

#include <QWidget>

class QComboBox;
class QDateEdit;

namespace norvane::sales
{

/// Offers the period of the menu entry first, then complete periods before today, then any days.
class PeriodChooser : public QWidget
{
    Q_OBJECT

public:
    /// @param menuPeriod the entry's own period, as the list shows it: "Month to date"; empty for a report
    /// outside the menu, for which periods to date are offered, too
    PeriodChooser(const QString& menuPeriod, QWidget* parent);

    [[nodiscard]] bool isOfMenu() const;
    /// The selection of the period in the days of @p field, "{PLUSALES.SALESDATE}"; empty if it is that of
    /// the menu.
    [[nodiscard]] QString formula(const QString& field) const;
    [[nodiscard]] reports::ComparedWith comparedWith() const;

Q_SIGNALS:
    void periodChanged();

private:
    void fill(const QString& menuPeriod);
    void layOut();
    void showDays();

    QComboBox* m_period;
    QWidget* m_days;
    QDateEdit* m_from;
    QDateEdit* m_to;
    QComboBox* m_compared;
};

} // namespace norvane::sales
