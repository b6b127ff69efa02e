// What a window offers besides the buttons of its own.
#pragma once

#include <QKeySequence>
#include <QString>
#include <QVector>

#include <functional>

namespace norvane::screens
{

class OptionForm;
class TableWindow;

/// An entry of a window's menu "More". Whoever opens the window provides it, since it leads to rooms that the
/// window does not know.
template <typename Window>
struct WindowTool {
    QString name;    ///< of its action
    QString caption; ///< with its access letter
    QKeySequence keys;
    /// Reports its failures itself: they do not concern the window.
    std::function<void(Window&)> use;
    bool forManyRecords = true; ///< not on screens with a single record
};

using ScreenTool = WindowTool<OptionForm>;
using ScreenTools = QVector<ScreenTool>;
using TableTool = WindowTool<TableWindow>;
using TableTools = QVector<TableTool>;

} // namespace norvane::screens
