// The editor of the window look-ups.
#pragma once

#include "base/ApplicationValues.h"
#include "keys/KeyGeometry.h"
#include "keys/lookups/LookUpLists.h"
#include "keys/lookups/LookUpRecords.h"

#include <QDialog>

class QHBoxLayout;
class QTableView;

namespace norvane
{
class Boxes;
}

namespace norvane::ui
{
class StatusLine;
class UsesButton;
} // namespace norvane::ui

namespace norvane::keys
{

class LookUpFields;
class LookUpGridModel;
class RecordPicker;

/// Shows one look-up after another, or the one that is chosen in a list. A click on an entry of a list, or
/// Enter, fills the current line; lines move by Alt and the arrows or by dragging. Only Save and Delete Line
/// store, and they store all of the form.
class frmwlu : public QDialog
{
    Q_OBJECT

public:
    /// Opens the chosen customer's database and shows its first look-up.
    /// @throws RuntimeFailure as openCustomerDatabase() and LookUpRecords do.
    frmwlu(ApplicationValues& values, Boxes& boxes, QWidget* parent = nullptr);

    /// Goes to the look-up of this number; nothing happens if there is none.
    void showRecord(const QString& number);
    /// Escape leads from the lists back to the lines first. Like the window's close button it asks about
    /// changes, which "E&xit" throws away unasked.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void layOut();
    void connectControls();
    [[nodiscard]] QHBoxLayout* makePickerRow();
    [[nodiscard]] QHBoxLayout* makeButtons();
    void moveLineBy(int step);

    void updategrid();
    void showLists();
    void saveChanges();
    void deleteLine();
    void leave();
    bool SaveGrid();
    [[nodiscard]] bool mayStore(const LookUp& lookUp);
    void offerInstead(const ListedItem& other);
    [[nodiscard]] bool mayLeave();
    [[nodiscard]] LookUp entered() const;
    void nextRecord();
    void previousRecord();
    void selectwlu_Click(int row);
    void goTo(const QString& number);
    void reportNoMoreRecords();
    void fillLine(ItemKind kind, const QString& number);
    [[nodiscard]] int currentLine() const;
    void goToLine(int line);

    Boxes& m_boxes;
    std::shared_ptr<store::Database> m_database;
    const KeyGeometry& m_keyboard;
    LookUpRecords m_records;
    LookUp m_shown; ///< as the controls held it when the record was shown
    RecordPicker* m_picker;
    LookUpGridModel* m_lines;
    LookUpFields* m_fields;
    QTableView* Grid1;
    LookUpLists* m_lists;
    ui::StatusLine* m_status;
    ui::UsesButton* m_uses;
};

} // namespace norvane::keys
