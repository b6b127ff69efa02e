// The reports of a night: each period that is over once, and again when its last day got more sales.
#pragma once

#include "command/NightSettings.h"
#include "command/Workplace.h"

namespace norvane::command
{

/// The section of the notes that nights leave in a customer's folder.
inline constexpr QLatin1StringView nightNotes("Night");

/// What a night needs to know to write reports.
struct NightDays {
    QDate closed;  ///< the last day that gets no more sales
    QDateTime now; ///< the moment for the headings
};

/// Writes what is due of @p report for a customer into its folder, which is made: "SHOP Daily
/// 2026-11-26.pdf". What was written is noted in the customer's folder, so that a night that was missed is
/// made up for by the next. The first time, only the last period with sales is written.
/// @return how many files. @throws CommandError NoSuchName for an unknown layout, Unwritable for a folder
/// that cannot be made; ReportError.
int writeDueReports(const Workplace& workplace, const ApplicationValues& values, const NightReport& report,
                    const NightDays& days);

} // namespace norvane::command
