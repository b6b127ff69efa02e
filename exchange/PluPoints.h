// Points of PLUs: fetching or sending the PLUs clears them, so they have to follow.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"

#include <functional>

namespace norvane::exchange
{

/// What the runs know about the points of the PLUs in a database.
enum class PluPoints {
    Unknown, ///< never fetched, or given up
    Wait,    ///< the PLUs were fetched and the points not yet
    Fetched,
};

/// Remembers @p points for the customer whose database is open.
void notePluPoints(const ApplicationValues& values, PluPoints points);

/// Whether the points have to be fetched before the PLUs are sent. Follows the table, which a safety copy may
/// have put back: with its points, or as it was while they waited.
[[nodiscard]] bool pluPointsWait(const ApplicationValues& values);

/// Asks before PLUs with pending points are sent. @return whether the points at the registers may be lost.
[[nodiscard]] bool mayLosePoints(Boxes& boxes);

/// Commits PLUs that were fetched, which have no points, by calling @p commit.
void storePlusWithoutPoints(const ApplicationValues& values, const std::function<void()>& commit);

} // namespace norvane::exchange
