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

    void copy() const;
    /// Columns in view, from that of the first chosen cell on.
    [[nodiscard]] std::vector<int> columnsFromChoice() const;
    [[nodiscard]] std::vector<int> rowsFromChoice() const;

Q_SIGNALS:
    void pasteWanted();
    /// The user has typed into a cell that cannot be changed: @p why, in words for the status bar.
    void refused(const QString& why);

protected:
    using QTableView::edit;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void fitColumns();
    void moveDown();
    bool toggleChosen();
    [[nodiscard]] QModelIndex firstChosen() const;

    TableModel& m_model;
};

} // namespace norvane::screens
