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

namespace norvane::store
{
class WorkHistory;
}

namespace norvane::screens
{

class ChoiceBar;
class PendingPanel;
class TableGrid;
class TableModel;

/// What a table is opened for.
struct TableOrder {
    QString screenFile;
    QString databasePath;
    QString caption; ///< of the screen: "PLUs"
    std::function<QString(const QString& field)> labelOf;
    std::shared_ptr<store::WorkHistory> history = {}; ///< for undoing what was saved
};

/// Shows all records in the columns of their screen, sorted by a click on a heading and filtered by a text
/// and by choices. Enter or a double click asks for the record's screen. What is entered into cells is listed
/// and stored by "Save Changes"; closing the window asks first.
class TableWindow : public QWidget
{
    Q_OBJECT

public:
    /// @throws RuntimeFailure as tableSource() and the database.
    TableWindow(const TableOrder& order, const ApplicationValues& values, Boxes& boxes, ColumnMemory memory,
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
    /// The result of the last action, in words for the status bar.
    void noticeChanged(const QString& text);
    /// Records were stored.
    void stored();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildView();
    [[nodiscard]] QPushButton* makeColumnsButton();
    [[nodiscard]] QPushButton* makeSaveButton();
    void buildFilters();
    void layOut();
    void save();
    void paste();
    void setField();
    [[nodiscard]] bool mayPaste(const QStringList& refusals, std::size_t taken);
    void showColumn(int column, bool isShown);
    void showCount();
    void chooseAgain(const std::function<void()>& change);
    void openRecord(const QModelIndex& index);

    QString m_screenFile;
    QString m_databasePath;
    QString m_caption;
    const ApplicationValues& m_values;
    Boxes& m_boxes;
    ColumnMemory m_memory;
    std::shared_ptr<store::WorkHistory> m_history;
    std::shared_ptr<store::Database> m_database;
    TableModel* m_model;
    ChoiceBar* m_choices;
    TableGrid* m_view;
    PendingPanel* m_pending;
    QLabel* m_count;
};

} // namespace norvane::screens
