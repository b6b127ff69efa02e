// The list of changes that are not stored yet, below a table.
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QTableView;

namespace norvane::screens
{

class EditsModel;
class TableModel;

/// Shows record, column, old and new value of each change. Delete, or the button, takes the chosen ones back.
/// Hidden while there is none.
class PendingPanel : public QWidget
{
    Q_OBJECT

public:
    explicit PendingPanel(TableModel& table, QWidget* parent = nullptr);

private:
    void layOutView();
    [[nodiscard]] QPushButton* makeTakeBackButton();
    void showChanges();
    void takeBack();

    TableModel& m_table;
    EditsModel* m_model;
    QTableView* m_view;
    QLabel* m_heading;
};

} // namespace norvane::screens
