// The record editor of all screens that are described by screen files.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "platform/RuntimeFailure.h"
#include "screens/EntryMarks.h"
#include "screens/KeyUses.h"
#include "screens/LostChanges.h"
#include "screens/RecordEditor.h"
#include "screens/ReportRunner.h"
#include "screens/ScreenReader.h"
#include "screens/SideRoom.h"
#include "screens/TypedChanges.h"
#include "screens/WindowTool.h"
#include "store/engine/Database.h"
#include "store/engine/WorkHistory.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

class QHBoxLayout;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace norvane::ui
{
class UsesButton;
}

namespace norvane::screens
{

class FieldPanel;
class GridControl;
class RecordList;

/// Builds itself from a screen file over the database at databasePath.
/// Each instance has its own connection and position, so that several may be open on one table. The title has
/// a star while there are unsaved changes. Moves, Find, Add and Exit drop them without a question, and Ctrl+Z
/// restores them; the record list and closing the window ask first.
class OptionForm : public QWidget
{
    Q_OBJECT

public:
    /// @param reports opened by the print button, which is greyed without it.
    /// @param losses where dropped changes are kept; a separate list without one.
    /// @param tools of the menu "More", which is not shown without one.
    /// @throws RuntimeFailure with Failure::UnknownName for an unknown table, index or field,
    /// Failure::NoCurrentRecord for an empty table, Failure::TypeMismatch for a bad number or word in the
    /// file, and those of the database; the text names the screen file.
    OptionForm(const QString& screenFilePath, const ApplicationValues& values, Boxes& boxes,
               ReportRunner* reports = nullptr, std::shared_ptr<LostChangesList> losses = nullptr,
               const ScreenTools& tools = {});
    ~OptionForm() override;

    [[nodiscard]] QSize sizeHint() const override { return m_size; }

    /// Puts the current record into the controls, and marks it in the list.
    void ShowFields();
    /// Shows the record, and the rows of a grid, as they now are in the file, which another screen, a price
    /// change or an upload may have changed; a record with unsaved input is unchanged.
    void refresh();
    /// The same, and the list. A screen whose record is gone goes to the first one.
    void refreshAll();
    /// Returns to the record whose changes this screen, or an earlier one of the same file, dropped last, and
    /// restores them to the controls. The current input is kept in their place.
    void getBack();
    /// From now on, what is saved, added and deleted can be undone from @p history.
    void setHistory(std::shared_ptr<store::WorkHistory> history) { m_history = std::move(history); }
    /// Starts a new record with what the screen shows, and with the fields of the shown record that have no
    /// control here. Its number and text are left to the user; for a PLU the next free number is proposed.
    /// What was typed and not saved is dropped as by Add.
    void addLikeThis();
    /// Saves, and starts the next record like the saved one.
    void addAnother();
    /// Shows the record with this stored key. What is typed is asked about first.
    void showKey(const QString& key);
    [[nodiscard]] QString screenFile() const { return m_file.path(); }
    [[nodiscard]] QString databasePath() const { return m_databasePath; }
    [[nodiscard]] QString table() const { return m_file.table().table; }
    /// The stored key of the record shown; empty for a new one.
    [[nodiscard]] QString recordKey() const { return m_editor->key(); }
    /// "PLU 1001"; the caption for the only record of a screen.
    [[nodiscard]] QString shownRecord() const;
    [[nodiscard]] QString caption() const;
    /// What the label beside the control of @p field says.
    [[nodiscard]] QString labelOf(const QString& field) const;

Q_SIGNALS:
    /// The result of the last action, in words for the status bar; empty once the screen shows another
    /// record.
    void noticeChanged(const QString& text);
    /// Another record is shown, by its stored key; empty for none or a new one.
    void recordShown(const QString& key);
    /// getBack() has nothing to restore.
    void nothingToGetBack();

protected:
    bool event(QEvent* event) override;
    /// Leaves Ctrl+Z in a box to the screen while nothing is typed.
    bool eventFilter(QObject* box, QEvent* event) override;
    /// Asks first while something typed is not saved; Exit has dropped it by then.
    void closeEvent(QCloseEvent* event) override;

private:
    static constexpr QLatin1StringView titleStar{"[*]"}; ///< where the title shows unsaved changes
    struct ButtonRow {
        const char* name;
        const char* caption;
        bool ScreenButtons::*shown; ///< nullptr: always
        void (OptionForm::*pressed)();
        bool beginsRightGroup = false;
    };
    [[nodiscard]] static const QVector<ButtonRow>& buttonRows();

    void openTable();
    void buildWindow();
    void buildControls();
    void buildButtons(const ScreenTools& tools);
    [[nodiscard]] ScreenTools ownTools() const;
    [[nodiscard]] QPushButton* addToolsButton(const ScreenTools& tools, QHBoxLayout& row);
    [[nodiscard]] QPushButton* addButton(const ButtonRow& entry, QHBoxLayout& row);
    void buildList();
    void buildUses();
    [[nodiscard]] QString textField() const;
    void layOut(QHBoxLayout* buttons);
    void addFindBar(GridControl& grid, QVBoxLayout& column);
    void addUsesRow(QVBoxLayout& column);
    void fitButtons(const QVector<QPushButton*>& shown);

    void attempt(const std::function<void()>& act);
    void tellFailure(const RuntimeFailure& failure);
    void showNothing();
    void takeUndoKey();
    void addRecord();
    void startRecord();
    void saveRecord();
    [[nodiscard]] bool save();
    [[nodiscard]] bool storeRecord(BoundFields& fields);
    [[nodiscard]] bool mayRenumberRecord(const BoundFields& fields);
    void keepNumber(BoundFields fields);
    /// With its text: "PLU 1001, Espresso".
    [[nodiscard]] QString spokenRecord() const;
    [[nodiscard]] QString unsavedRecord() const;
    void tellRefusal(const RuntimeFailure& failure);
    [[nodiscard]] bool mayDelete();
    void deleteRecord();
    [[nodiscard]] KeyUses usesOfRecord(int atMost);
    [[nodiscard]] std::optional<KeyUses> readUses(int atMost);
    void recountUses();
    void startLike(const std::vector<store::Value>& record, BoundFields fields);
    [[nodiscard]] store::Value proposedNumber(const BoundField& number);
    void markEntries();
    void nextRecord();
    void previousRecord();
    void findRecord(int element);
    void tellNext(const store::FieldDefinition& field, const QString& sought);
    void goTo(const QString& key);
    void markRecord();
    void reloadList();
    void printReport();
    void exitForm();
    void showRecord();
    void showUnchanged(const BoundFields& fields);
    void showStar();
    [[nodiscard]] std::optional<LostChanges> unsavedChanges() const;
    [[nodiscard]] store::RecordedWork recordWork();
    void drop(std::optional<LostChanges> changes);
    [[nodiscard]] bool mayLeave();
    void returnTo(const LostChanges& lost);
    void putBack(const LostChanges& lost);
    void rejectCell(GridControl& grid, const QModelIndex& index, const QString& why);
    void tellNoMoreRecords();

    const ApplicationValues& m_values;
    Boxes& m_boxes;
    ReportRunner* m_reports;
    ScreenReader m_file;
    QString m_databasePath;
    std::shared_ptr<store::Database> m_database;
    std::unique_ptr<RecordEditor> m_editor;
    FieldPanel* CSPict1 = nullptr;
    RecordList* m_list = nullptr;     ///< beside screens that walk several records
    ui::UsesButton* m_uses = nullptr; ///< on such screens whose records others refer to
    EntryMarks m_marks;               ///< of a new record like another
    bool m_failed = false;            ///< it closes, and does nothing any more
    std::optional<TypedChanges> m_typed;
    std::shared_ptr<LostChangesList> m_losses;
    std::shared_ptr<store::WorkHistory> m_history;
    QString m_notice; ///< what the action that is under way has dropped or saved, said at its end
    QSize m_size;
    SideRoom m_sideRoom; ///< for the open list
};

} // namespace norvane::screens
