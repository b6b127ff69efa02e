// The one record editor behind all screens that are described by screen files.
#pragma once

#include "base/ApplicationValues.h"
#include "platform/Boxes.h"
#include "platform/RuntimeFailure.h"
#include "screens/RecordEditor.h"
#include "screens/ReportRunner.h"
#include "screens/ScreenReader.h"
#include "screens/SideRoom.h"
#include "store/Database.h"

#include <QWidget>

#include <functional>
#include <memory>

class QHBoxLayout;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace norvane::screens
{

class FieldPanel;
class GridControl;
class RecordList;

/// Builds itself from a screen file over the database at databasePath.
/// Each instance has a connection and a place in the table of its own, so that several may be open on one
/// table. Closing it loses what was not saved, without a question.
class OptionForm : public QWidget
{
    Q_OBJECT

public:
    /// @param reports behind the print button, which is greyed without it.
    /// @throws RuntimeFailure 3265 for an unknown table, index or field, 3021 for an empty table, 13 for a
    /// bad number or word in the file, and those of the database; the text names the screen file.
    OptionForm(const QString& screenFilePath, const ApplicationValues& values, Boxes& boxes,
               ReportRunner* reports = nullptr, QWidget* parent = nullptr);
    ~OptionForm() override;

    [[nodiscard]] QSize sizeHint() const override { return m_size; }

    /// Puts the current record into the controls, and marks it in the list.
    void ShowFields();
    /// Shows the record, and the rows of a grid, as they stand in the file now, which another screen, a price
    /// change or an upload may have changed; a record in which the user has typed stays as it is.
    void refresh();

Q_SIGNALS:
    /// What the last action came to, in words for the status bar; empty once the screen shows another record.
    void told(const QString& text);

protected:
    bool event(QEvent* event) override;

private:
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
    void buildButtons();
    [[nodiscard]] QPushButton* addButton(const ButtonRow& entry, QHBoxLayout& row);
    void buildList();
    [[nodiscard]] QString textField() const;
    void layOut(QHBoxLayout* buttons);
    void addFindBar(GridControl& grid, QVBoxLayout& column);
    void fitButtons(const QVector<QPushButton*>& shown);

    void attempt(const std::function<void()>& act);
    void tellFailure(const RuntimeFailure& failure);
    void showNothing();
    void addRecord();
    void saveRecord();
    void tellSaved();
    void tellRefusal(const RuntimeFailure& failure);
    void deleteRecord();
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
    [[nodiscard]] bool isTouched() const;
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
    RecordList* m_list = nullptr; ///< beside screens that walk several records
    bool m_failed = false;        ///< it closes, and does nothing any more
    BoundFields m_shown;          ///< the controls as the record or the last save left them
    QSize m_size;
    SideRoom m_sideRoom; ///< for the open list
};

} // namespace norvane::screens
