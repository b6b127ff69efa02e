// The records of a screen as a table.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "screens/table/ColumnMemory.h"
#include "screens/table/TableColumns.h"

#include <QWidget>

#include <functional>
#include <memory>

class QLabel;
class QPushButton;
class QTableView;
class QVBoxLayout;

namespace norvane::screens
{

class ChoiceBar;
class TableModel;

/// What a table is opened for.
struct TableOrder {
    QString screenFile;
    QString databasePath;
    QString caption; ///< of the screen: "PLUs"
    std::function<QString(const QString& field)> labelOf;
};

/// Shows all records in the columns of their screen, sorted by a click on a heading and filtered by a text
/// and by choices. Enter or a double click asks for the record's screen.
class TableWindow : public QWidget
{
    Q_OBJECT

public:
    /// @throws RuntimeFailure as tableSource() and the database.
    TableWindow(const TableOrder& order, const ApplicationValues& values, ColumnMemory memory,
                QWidget* parent = nullptr);

    [[nodiscard]] QString screenFile() const { return m_screenFile; }
    [[nodiscard]] QString databasePath() const { return m_databasePath; }
    [[nodiscard]] QSize sizeHint() const override;

    /// Highlights the record that the screen shows, by its stored key, and goes to it if it is another one
    /// than before; an empty text for none.
    void mark(const QString& key);
    /// Highlights it and goes to it in any case.
    void goTo(const QString& key);
    /// Shows the records as they now are in the file.
    void refresh();

Q_SIGNALS:
    /// The user wants to see the record with this key on its screen.
    void recordWanted(const QString& key);

private:
    void build(const TableOrder& order);
    [[nodiscard]] QTableView* makeView();
    void buildColumnsMenu(QPushButton& button);
    void layOut(QPushButton* columns);
    void showColumn(int column, bool isShown);
    void showCount();
    void chooseAgain(const std::function<void()>& change);
    void openRecord(const QModelIndex& index);

    QString m_screenFile;
    QString m_databasePath;
    ColumnMemory m_memory;
    std::shared_ptr<store::Database> m_database;
    TableModel* m_model;
    ChoiceBar* m_choices;
    QTableView* m_view;
    QLabel* m_count;
};

} // namespace norvane::screens
