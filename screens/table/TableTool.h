// What the table of a screen's records offers besides its own buttons.
#pragma once

#include <QKeySequence>
#include <QString>
#include <QVector>

#include <functional>

namespace norvane::screens
{

class TableWindow;

/// An entry of a table's menu "More". Whoever opens the table provides it, since it leads to rooms that
/// tables do not know.
struct TableTool {
    QString name;    ///< of its action
    QString caption; ///< with its access letter
    QKeySequence keys;
    /// Reports its failures itself: they do not concern the table.
    std::function<void(TableWindow&)> use;
};

using TableTools = QVector<TableTool>;

} // namespace norvane::screens
