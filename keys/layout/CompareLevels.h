// Two levels side by side.
#pragma once

#include "keys/KeyPlaces.h"
#include "keys/layout/LevelComparison.h"

#include <QDialog>

#include <memory>

class QLabel;
class QPushButton;
class QStandardItemModel;
class QTableView;

namespace norvane
{
class Boxes;
}

namespace norvane::keys
{

class ComparedSide;

/// Keys that do not do the same have a frame on both sides, and a line in the list below. The key chosen on
/// one side is chosen on the other one, and in the list.
class CompareLevels : public QDialog
{
    Q_OBJECT

public:
    /// Compares @p shown, with its unsaved changes, with the next level, or the last one with the one before.
    /// @p shown and @p boxes must outlive the dialog. @throws RuntimeFailure as KeyLevel::read().
    CompareLevels(const KeyLevel& shown, const std::shared_ptr<store::Database>& database, Boxes& boxes,
                  QWidget* parent);

    /// Where the user wants to go, once the dialog is accepted.
    [[nodiscard]] const KeyPlace& wantedPlace() const { return m_wanted; }
    [[nodiscard]] KeyCell wantedCell() const { return m_cell; }

private:
    void layOut();
    void connectSide(ComparedSide& side, ComparedSide& other);
    void makeList();
    void changeLevel(ComparedSide& side, int level);
    void compare();
    void listDifferences();
    void showCell(KeyCell cell);
    void goTo(const ComparedSide& side);

    Boxes& m_boxes;
    ComparedSide* m_left;
    ComparedSide* m_right;
    QStandardItemModel* m_differences;
    QTableView* m_list = nullptr; ///< of them
    QLabel* m_count;
    QPushButton* m_goLeft = nullptr;
    QPushButton* m_goRight = nullptr;
    std::vector<KeyDifference> m_found;
    KeyPlace m_wanted;
    KeyCell m_cell;
};

} // namespace norvane::keys
