// What a complete exchange has moved, in words for the status bar.
#pragma once

#include "exchange/ExchangePlan.h"
#include "link/LinkSettings.h"

#include <QString>

namespace norvane::exchange
{

/// "36 files from register 1", "1 file to registers 1 to 3".
[[nodiscard]] inline QString movedFiles(int count, Direction direction, const link::LinkSettings& link)
{
    const QString files = count == 1 ? QStringLiteral("1 file") : QStringLiteral("%1 files").arg(count);
    return direction == Direction::Upload ? files + QStringLiteral(" from register 1")
                                          : files + QStringLiteral(" to ") + link::registersInWords(link);
}

} // namespace norvane::exchange
