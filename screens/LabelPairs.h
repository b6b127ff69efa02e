// Which label of a screen belongs to which control.
#pragma once

#include <QVector>

class QLabel;
class QWidget;

namespace norvane::screens
{

/// Ties each label to the control that stands right behind it in its row: the label's access letter leads
/// there, and screen readers say its text. A label right behind a control ("minutes") is part of its name as
/// well. Labels that stand alone head what lies below them and look so; a control without a label of its own
/// is named by that of its row and the heading of its column ("Price 1 level"), and so are those that would
/// share a name.
void tieLabels(const QVector<QLabel*>& labels, const QVector<QWidget*>& controls);

} // namespace norvane::screens
