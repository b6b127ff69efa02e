// What a manager wants to know of a shop at a glance, in words.
#pragma once

#include "base/ApplicationValues.h"
#include "exchange/ChangesLook.h"

#include <QDateTime>
#include <QString>

#include <vector>

namespace norvane::shell
{

/// What a line is about. The panel opens the form that belongs to it.
enum class Subject {
    Collection, ///< the last one, and whether the registers were cleared
    Takings,    ///< of the last days
    Unsent,     ///< what the registers do not have yet
    Copies,     ///< the latest safety copy
    Log         ///< what went wrong since noon of the day before
};

/// A day of sales.
struct OverviewBar {
    QString day;   ///< "Wed 25/11"
    QString value; ///< "£1,234.50"; that it was not collected, if so
    bool isCollected = false;
    double share = 0; ///< of the best day's sales, from 0 to 1; for the length of the bar only
};

/// A line such as "Last collection: 25/11/2026 18:03, yesterday; complete".
struct OverviewLine {
    Subject subject = Subject::Collection;
    QString caption;
    QString text;                  ///< may be empty above bars
    bool needsAttention = false;   ///< something is to be done, or cannot be read
    std::vector<OverviewBar> bars; ///< below the text, the latest day last; most lines have none
};

/// Nothing of it is read again by itself.
struct ShopOverview {
    QString customer;
    std::vector<OverviewLine> lines;
    bool isBusy = false; ///< another program held the database; worth another try soon
};

/// Reads the overview of the chosen customer from its own folder and database, also while the database of
/// another customer is open. Writes nothing and waits for no other program. A source that cannot be read
/// gives a line that says so, and the others remain. Without a customer there are no lines.
/// @param unsent the line about the registers, which takes its place among the others.
[[nodiscard]] ShopOverview readOverview(const ApplicationValues& values, const QDateTime& now,
                                        const OverviewLine& unsent);

/// The line about what a customer's own database has and its registers do not, from what a look with
/// ownValues() has found. Looking walks the tables, which takes a tenth of a second and more.
[[nodiscard]] OverviewLine unsentLine(const QString& customerPath, const exchange::FoundChanges& found);
/// With the chosen customer's own database, whichever is open.
[[nodiscard]] ApplicationValues ownValues(const ApplicationValues& values);
/// The line until it is read.
[[nodiscard]] OverviewLine unreadUnsent();

} // namespace norvane::shell
