// A block of cells from a spreadsheet, and what it changes in a table.
#pragma once

#include "screens/table/PendingEdits.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <vector>

namespace norvane::screens
{

class TableModel;

/// The rows and cells of @p text as spreadsheets copy them: cells end with tabs, rows with line ends; a cell
/// with either of them is in quotes.
[[nodiscard]] QVector<QStringList> cellsOfText(const QString& text);
/// The same text for cells.
[[nodiscard]] QString textOfCells(const QVector<QStringList>& cells);

/// Where cells go: each cell of @p cells to the row and the column of the same place. Cells without such a
/// place are refused.
struct PasteTarget {
    std::vector<int> rows;
    std::vector<int> columns;
};

/// What a paste would change, and a line for each cell that cannot take what it should: where, what and why.
struct PastePlan {
    std::vector<PendingEdit> edits;
    QStringList refusals;
};

[[nodiscard]] PastePlan planPaste(TableModel& table, const PasteTarget& target,
                                  const QVector<QStringList>& cells);

} // namespace norvane::screens
