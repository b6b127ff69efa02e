// The records of a screen as a table.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "screens/KeyUses.h"
#include "screens/table/ColumnMemory.h"
#include "screens/table/PendingEdits.h"
#include "screens/table/TableColumns.h"
#include "screens/WindowTool.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QHBoxLayout;
class QLabel;
class QPushButton;

namespace norvane::store
{
class WorkHistory;
}

namespace norvane::ui
{
class UsesButton;
}

namespace norvane::screens
{

class ChoiceBar;
class PendingPanel;
class TableGrid;
class TableModel;
struct TableInUse;

/// What a table is opened for.
struct TableOrder {
    QString screenFile;
    QString databasePath;
    QString caption; ///< of the screen: "PLUs"
    std::function<QString(const QString& field)> labelOf;
    std::shared_ptr<store::WorkHistory> history = {}; ///< for undoing what was saved
    TableTools tools = {};                            ///< of the menu "More", which is not shown without one
    /// The keys of the records that the registers do not have as they are here.
    std::function<std::vector<store::Value>(const TableSource& source)> unsentKeys = {};
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
    /// Of the screen: "PLUs".
    [[nodiscard]] QString caption() const { return m_caption; }
    /// The table with its columns, as the screen shows them.
    [[nodiscard]] const TableSource& source() const;
    /// The stored key of the current record; empty for none.
    [[nodiscard]] QString currentKey() const;
    /// Those of all records with a chosen cell, from the top.
    [[nodiscard]] QStringList chosenKeys() const;
    /// Those of all records that the filters leave, in their order.
    [[nodiscard]] QStringList shownKeys() const;
    /// What the table shows, changes that are not saved included.
    [[nodiscard]] const TableModel& model() const { return *m_model; }
    /// The columns of the model that are not hidden.
    [[nodiscard]] std::vector<int> shownColumns() const;
    /// Whether something entered is not saved.
    [[nodiscard]] bool hasEdits() const;
    /// Asks what to do with what is not saved. @return whether nothing is left of it.
    [[nodiscard]] bool settleEdits();
    [[nodiscard]] QSize sizeHint() const override;

    /// Highlights the record that the screen shows, by its stored key, and goes to it if it is another one
    /// than before; an empty text for none.
    void mark(const QString& key);
    /// Highlights it and goes to it in any case.
    void goTo(const QString& key);
    /// Takes back the latest change that is not stored: a cell, a pasted block, a field of many records.
    /// @return false if there is none.
    bool takeBackLatest();
    /// Deletes the records with a chosen cell after a question. Changes that are not stored come first.
    void deleteChosen();
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
    /// Leaves Ctrl+Z in the filter to the table while there is nothing typed to undo.
    bool eventFilter(QObject* box, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void buildView();
    [[nodiscard]] QPushButton* makeColumnsButton();
    [[nodiscard]] QPushButton* makeSaveButton();
    void buildFilters();
    [[nodiscard]] QHBoxLayout* makeRecordRow();
    void layOut(const TableTools& tools);
    void buildUses();
    [[nodiscard]] std::optional<KeyUses> readUses(int atMost);
    void rememberEdits();
    [[nodiscard]] TableInUse inUse() const;
    void refuse(const QString& why);
    void save();
    void paste();
    void setField();
    [[nodiscard]] bool mayPaste(const QStringList& refusals, std::size_t taken);
    void showColumn(int column, bool isShown);
    void showCount();
    void chooseAgain(const std::function<void()>& change);
    [[nodiscard]] std::vector<int> allRows() const;
    [[nodiscard]] QStringList keysOf(const std::vector<int>& rows) const;
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
    ui::UsesButton* m_uses = nullptr;           ///< of records to which others refer
    std::vector<PendingEdits> m_earlier = {{}}; ///< what was not stored before each change, and now
};

} // namespace norvane::screens
