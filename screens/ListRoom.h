// How wide the lists of a screen are.
#pragma once

#include <QVector>

class QWidget;

namespace norvane::screens
{

/// Where the rightmost of @p controls ends.
[[nodiscard]] int rightEdge(const QVector<QWidget*>& controls);

/// Makes each drop-down list among @p controls, all of those in view, as wide as its longest row, limited by
/// the next control in its row and the right edge of all controls: a shop's own names are longer than those
/// that a screen file was drawn for.
void widenLists(const QVector<QWidget*>& controls);

} // namespace norvane::screens
