// Days and times as boxes, screens and reports show them: in one form, whatever the computer's language.
// Files and the command line use other forms.
#pragma once

#include <QDateTime>

namespace norvane
{

/// The form of a day, for controls.
[[nodiscard]] inline QString shownDayFormat()
{
    return QStringLiteral("dd/MM/yyyy");
}

/// "07/05/2004", day before month.
[[nodiscard]] inline QString shownDay(const QDate& day)
{
    return day.toString(shownDayFormat());
}

/// "07/05/2004 18:30".
[[nodiscard]] inline QString shownTime(const QDateTime& time)
{
    return time.toString(QStringLiteral("dd/MM/yyyy HH:mm"));
}

} // namespace norvane
