// The periods of sales reports, and those that they are compared with.
#pragma once

#include <QDate>
#include <QLatin1String>
#include <QString>

#include <optional>
#include <span>

namespace norvane::reports
{

/// Days from one to another, both included. An invalid day means no limit at that end.
struct Period {
    QDate from;
    QDate to;
    QString name; ///< "Month to date"; empty for days that were picked

    [[nodiscard]] bool isOpen() const { return !from.isValid() || !to.isValid(); }
    /// Whether it is a named period that ends today.
    [[nodiscard]] bool isToDate() const;
    /// "Month to date, 01/11/2026 to 25/11/2026"; "Wednesday, 25/11/2026" for one day that was
    /// picked.
    [[nodiscard]] QString text() const;
};

/// A period that formulas can name.
struct NamedPeriod {
    QLatin1String word; ///< in formulas: "lastmonth"
    QLatin1String name; ///< in headings: "Last month"
    QDate (*first)(QDate today);
    QDate (*last)(QDate today);
};

/// Those to date, which end today, and the complete ones before them.
[[nodiscard]] std::span<const NamedPeriod> namedPeriods();

/// The period called @p name in formulas, in any case, seen from @p today.
/// @return nothing for another name.
[[nodiscard]] std::optional<Period> namedPeriod(QStringView name, QDate today);

/// The selection of the days of @p period, which is not open: "{PLUSALES.SALESDATE} in date(2026,10,1) to
/// date(2026,10,31)" for the field "{PLUSALES.SALESDATE}".
[[nodiscard]] QString formulaOf(const QString& field, const Period& period);

/// What comes directly before @p period, which is not open: as many months before whole months, the same days
/// of the month or year before for the first days of one, else as many days.
[[nodiscard]] Period periodBefore(const Period& period);

/// The same a year earlier: up to seven days by weekday, so 364 days earlier; months and longer periods by
/// date, and the 29th of February is then the 28th.
[[nodiscard]] Period yearEarlier(const Period& period);

} // namespace norvane::reports
