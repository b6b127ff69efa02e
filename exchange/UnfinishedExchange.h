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

/// An exchange that did not finish: a crash, a power cut, an error, or the user leaving.
struct UnfinishedExchange {
    Direction direction = Direction::Upload;
    QDateTime started;
    QList<int> boxes; ///< still to do
};

/// Remembers @p exchange in place of any other; one without boxes is finished and forgotten.
void noteExchange(const ApplicationValues& values, const UnfinishedExchange& exchange);
/// The last exchange, if boxes of it are still to do.
[[nodiscard]] std::optional<UnfinishedExchange> unfinishedExchange(const ApplicationValues& values);
/// Shows which boxes of the last exchange are still to do, and since when; nothing if there are none. If it
/// went in @p direction, asks whether to do them now.
/// @return the boxes to tick: those of the exchange after a Yes.
QList<int> offerUnfinishedExchange(const ApplicationValues& values, Direction direction, Boxes& boxes);

} // namespace norvane::exchange
