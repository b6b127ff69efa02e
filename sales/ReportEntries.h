// The reports of the menu: what each entry sets before the report dialog opens.
#pragma once

#include <QDate>
#include <QLatin1StringView>
#include <QString>

#include <optional>
#include <span>

namespace norvane::sales
{

/// What the title of an entry is for, besides the caption of the dialog.
enum class TitleUse {
    Report, ///< the heading of the pages
    Window, ///< the preview window
};

/// A report of the menu.
struct ReportEntry {
    QLatin1StringView handler; ///< "PLUSalesByDate_Click"
    QLatin1StringView title;
    QLatin1StringView file; ///< layout in the program's folder
    /// The value for ApplicationValues::reportMode; nothing leaves it unchanged.
    std::optional<QLatin1StringView> mode;
    QLatin1StringView formula; ///< of the selection; empty for none
    TitleUse titleUse = TitleUse::Report;
};

[[nodiscard]] std::span<const ReportEntry> reportEntries();

/// The field with the day of a sale, as the entry's formula names it: "{PLUSALES.SALESDATE}".
/// @return empty text for the price list, which has no days.
[[nodiscard]] QString dayFieldOf(const ReportEntry& entry);
/// The entry's own period as a list shows it: "Month to date", "Day in the calendar".
[[nodiscard]] QString periodOf(const ReportEntry& entry);
/// Its title for another period: "PLU Sales Report".
[[nodiscard]] QString titleWithoutPeriod(const ReportEntry& entry);

/// The selection formula for the sales of @p day: "{PLUSALES.SALESDATE} = date(2004,5,7)" for "DAILYPLU".
/// @return nothing if @p mode does not ask for a day.
[[nodiscard]] std::optional<QString> formulaOfDay(const QString& mode, QDate day);

} // namespace norvane::sales
