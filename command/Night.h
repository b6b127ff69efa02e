// What a night is asked to do, and what came of it.
#pragma once

#include "command/ExitCode.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <array>
#include <chrono>
#include <vector>

namespace norvane::command
{

struct NightOptions {
    QString connection; ///< of the chain's PostgreSQL; empty to publish nothing
    QString reports;    ///< folder for each day's report of PLU sales; empty for none
    QString copies;     ///< folder for copies elsewhere; empty for that of the settings
    std::chrono::seconds waitForLock{0};
    int retries = 0;
    std::chrono::seconds betweenRetries{0};
    QDate day;          ///< to book sales for; invalid for that of each collection
    bool again = false; ///< collect and copy also where this night has done so already
};

/// What came of a step at one shop.
struct NightEnd {
    ExitCode code = ExitCode::Done;
    QString words;         ///< what was done, or what went wrong; empty when there was nothing to do
    bool mayRetry = false; ///< a later attempt can go better

    [[nodiscard]] bool isDone() const { return code == ExitCode::Done; }
};

/// A step in words.
struct NightStepName {
    QLatin1StringView name; ///< "Sales"
    QLatin1StringView left; ///< when it is left to do: "sales not complete"
};
/// The steps of a night in their order. A step that failed does not stop the following ones.
inline constexpr auto nightSteps = std::to_array<NightStepName>({
    {QLatin1StringView("Folder"), QLatin1StringView("folder not in order")},
    {QLatin1StringView("Planned changes"), QLatin1StringView("planned changes not complete")},
    {QLatin1StringView("Sales"), QLatin1StringView("sales not complete")},
    {QLatin1StringView("Reports"), QLatin1StringView("reports not complete")},
    {QLatin1StringView("Publication"), QLatin1StringView("publication not complete")},
    {QLatin1StringView("Copy"), QLatin1StringView("not copied")},
});

/// What came of a night at one shop.
struct ShopNight {
    QString shop;
    QDate day; ///< that the sales were booked for; invalid if this night has stored none
    std::array<NightEnd, nightSteps.size()> steps;
    QStringList said; ///< by the tools, and what boxes showed

    /// Of the first step that is not done.
    [[nodiscard]] ExitCode code() const;
    [[nodiscard]] bool mayRetry() const;
    /// "sales, publication"; empty when nothing is left.
    [[nodiscard]] QString leftToDo() const;
    /// "North Gate: 3,776 rows of sales stored for 2026-11-26, 12 s; 1 report written".
    [[nodiscard]] QString inWords() const;
};

/// "3 of 40 shops have something left to do: ...", with a line for each of them.
[[nodiscard]] QString nightInWords(const std::vector<ShopNight>& shops);

/// A page for a browser, without anything from elsewhere.
[[nodiscard]] QByteArray nightPage(const std::vector<ShopNight>& shops, const QDateTime& begun,
                                   const QDateTime& ended);

} // namespace norvane::command
