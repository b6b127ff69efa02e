// Which label of a screen belongs to which control.
#pragma once

#include <QVector>

class QLabel;
class QWidget;

namespace norvane::screens
{

/// Connects each label with the control right after it in its row: the label's access letter leads there, and
/// screen readers say its text. A label right after a control ("minutes") is part of its name as well. Labels
/// without a control are headings of the controls below and look so; a control without a label is named by
/// the label of its row and the heading of its column ("Price 1 level"), and so are controls that would share
/// a name.
void tieLabels(const QVector<QLabel*>& labels, const QVector<QWidget*>& controls);

} // namespace norvane::screens
