// What an exchange that was cut off left undone, remembered in the customer's folder.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"

#include <QDateTime>
#include <QList>

#include <optional>

namespace norvane::exchange
{

enum class Direction { Upload, Download };

/// An exchange that did not come to its end: a crash, a power cut, an error, or the user leaving.
struct UnfinishedExchange {
    Direction direction = Direction::Upload;
    QDateTime started;
    QList<int> boxes; ///< still to do
};

[[nodiscard]] std::optional<UnfinishedExchange> unfinishedExchange(const ApplicationValues& values);
/// Remembers @p exchange in place of any other; one without boxes is finished and forgotten.
void noteExchange(const ApplicationValues& values, const UnfinishedExchange& exchange);
/// Tells which boxes of the last exchange are still to do, and since when; nothing when there are none.
void tellUnfinishedExchange(const ApplicationValues& values, Boxes& boxes);

/// What the runs know about the points of the PLUs in a database.
enum class PluPoints {
    Unknown, ///< never fetched, or given up
    Wait,    ///< the PLUs were fetched and the points not yet
    Fetched,
};

/// Remembered for the customer whose database is open.
[[nodiscard]] PluPoints notedPluPoints(const ApplicationValues& values);
void notePluPoints(const ApplicationValues& values, PluPoints points);

/// Whether the points have to be fetched before the PLUs are sent. Follows the table, which a safety copy may
/// have put back: with its points, or as it was while they waited.
[[nodiscard]] bool pluPointsWait(const ApplicationValues& values);

} // namespace norvane::exchange
