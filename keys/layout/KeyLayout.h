// The keyboard layout editor.
#pragma once

#include "base/ApplicationValues.h"
#include "keys/KeyPlaces.h"
#include "keys/layout/KeyEditor.h"
#include "keys/layout/KeyGridModel.h"

#include <QDialog>

#include <memory>

class QLayout;

namespace norvane
{
class Boxes;
}

namespace norvane::ui
{
class FindBar;
class StatusLine;
} // namespace norvane::ui

namespace norvane::keys
{

class KeyCommands;
class KeyFillBar;
struct FillPlan;
class KeyGrid;
class KeyListPanel;
class LevelRow;
class LevelTools;

/// The forms KeyLayoutVelmar and KeyLayoutDorvik: one level of the keyboard as a grid, and lists of what can
/// be put on its keys. Nothing is stored before the user says so.
class KeyLayout : public QDialog
{
    Q_OBJECT

public:
    /// Opens the chosen customer's database. @p values and @p boxes must outlive the form.
    /// @throws RuntimeFailure with Failure::NoCurrentRecord when a table has fewer rows than level 1 needs,
    /// and as reading does.
    KeyLayout(const KeyGeometry& keyboard, ApplicationValues& values, Boxes& boxes,
              QWidget* parent = nullptr);

    /// Escape ends a fill, clears a search, removes marks or leads back to the grid, whichever comes first.
    /// Otherwise it closes the form and, like the window's close button, asks about changes, which only
    /// "E&xit" drops unasked.
    void reject() override;

    /// The texts of the keys again: their items may be others now.
    void itemsChanged();

Q_SIGNALS:
    /// The user asked to see the record of an item, by its number without leading zeros.
    void itemWanted(norvane::keys::ItemKind kind, const QString& number);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void layOut();
    [[nodiscard]] QLayout* makeFindRow();
    void connectParts();
    void addCommands();
    void addTools();
    void fitScreen();
    void enterList();

    void updategrid(int level);
    void showLevel();
    bool SaveGrid();
    [[nodiscard]] std::optional<bool> askToSave();
    void askAndSave();
    [[nodiscard]] bool leaveLevel();
    void changeLevel(int level);
    void copyLevels();
    void goTo(const KeyPlace& place, KeyCell cell);

    void assign(ItemKind kind, const QString& number, bool byEnter);
    [[nodiscard]] bool mayAssign(const KeyCells& cells, ItemKind kind, const QString& number);
    void goToNextKey();
    void showFill(bool isOpen);
    void fillOrShowFill();
    void fill(const FillPlan& plan);
    void drop(KeyCell target, bool copies);
    void finish(Refusal refusal);
    void showChanges();
    void find();
    void goOnFinding(int step);
    void showKey();
    void showItem(ItemKind kind, const QString& number);
    void showPlaces(const Key& key);

    const ApplicationValues& m_values;
    Boxes& m_boxes;
    std::shared_ptr<store::Database> m_database;
    KeyLevel m_level;
    KeyEditor m_editor{m_level};
    KeyGridModel m_model{m_level, m_editor};
    KeyCells m_found;
    KeyGrid* Grid1;
    KeyCommands* m_commands;
    KeyListPanel* m_lists;
    KeyFillBar* m_fill;
    LevelRow* m_levels;
    LevelTools* m_tools = nullptr;
    ui::FindBar* m_find;
    ui::StatusLine* m_status;
};

} // namespace norvane::keys
