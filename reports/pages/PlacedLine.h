// The place of a report's line.
#pragma once

#include <QRectF>

namespace norvane::reports
{

/// A line and its place on a page.
struct PlacedLine {
    qsizetype line = 0;
    QRectF place;
    bool isContinued = false; ///< a group's heading once more, above its lines on a further page
};

} // namespace norvane::reports
