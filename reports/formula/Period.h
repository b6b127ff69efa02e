// The periods of sales reports.
#pragma once

#include <QDate>
#include <QString>

#include <optional>

namespace norvane::reports
{

/// Days from one to another, both included. An invalid day means no limit at that end.
struct Period {
    QDate from;
    QDate to;
    QString name; ///< "Month to date"; empty for days that were picked

    [[nodiscard]] bool isOpen() const { return !from.isValid() || !to.isValid(); }
    /// "Month to date, 01/11/2026 to 25/11/2026"; "Wednesday, 25/11/2026" for one day that was
    /// picked.
    [[nodiscard]] QString text() const;
};

/// The period that ends on @p today: monthtodate, WeekToDateFromSun (the week begins on Sunday) or
/// YearToDate, in any case. @return nothing for another name.
[[nodiscard]] std::optional<Period> namedPeriod(QStringView name, QDate today);

} // namespace norvane::reports
