// The view of a table: cells to edit, blocks to copy and paste.
#pragma once

#include <QPersistentModelIndex>
#include <QTableView>

#include <vector>

namespace norvane::screens
{

class TableModel;

/// F2 or typing edits a cell, Tab and Enter lead on, the space bar changes Yes to No and back in all chosen
/// cells. Ctrl+C and Ctrl+V exchange blocks with spreadsheets.
class TableGrid : public QTableView
{
    Q_OBJECT

public:
    TableGrid(TableModel& model, QWidget* parent);

    /// Opens the cell again with @p text in it, which could not be entered.
    void retry(const QModelIndex& index, const QString& text);
    /// The rows with a chosen cell, from the top.
    [[nodiscard]] std::vector<int> chosenRows() const;

Q_SIGNALS:
    void pasteWanted();

public:
    void copy() const;
    /// Columns in view, from that of the first chosen cell on.
    [[nodiscard]] std::vector<int> columnsFromChoice() const;
    [[nodiscard]] std::vector<int> rowsFromChoice() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fitColumns();
    void moveDown();
    bool toggleChosen();
    [[nodiscard]] QModelIndex firstChosen() const;

    TableModel& m_model;
};

} // namespace norvane::screens
