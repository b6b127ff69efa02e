// Which label of a screen belongs to which control.
#pragma once

#include <QVector>

class QLabel;
class QWidget;

namespace norvane::screens
{

/// Ties each label to the control that stands right behind it in its row: the label's access letter leads
/// there, and screen readers say its text. A label right behind a control ("minutes") describes it as well.
/// Labels that stand alone head what lies below them and look so; a control without a label of its own is
/// known by that of its row and the heading of its column.
void tieLabels(const QVector<QLabel*>& labels, const QVector<QWidget*>& controls);

} // namespace norvane::screens
