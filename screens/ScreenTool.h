// What a screen offers besides the buttons of its file.
#pragma once

#include <QKeySequence>
#include <QString>
#include <QVector>

#include <functional>

namespace norvane::screens
{

class OptionForm;

/// An entry of a screen's menu "More". Whoever opens the screen provides it, since it leads to rooms that
/// screens do not know.
struct ScreenTool {
    QString name;    ///< of its action
    QString caption; ///< with its access letter
    QKeySequence keys;
    /// Reports its failures itself: they do not concern the screen.
    std::function<void(OptionForm&)> use;
    bool forManyRecords = true; ///< not on screens with a single record
};

using ScreenTools = QVector<ScreenTool>;

} // namespace norvane::screens
