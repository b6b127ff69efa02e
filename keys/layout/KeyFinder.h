// Finds keys on all levels.
#pragma once

#include "keys/layout/KeyHitList.h"

#include <QDialog>

#include <memory>

class QComboBox;
class QLabel;
class QPushButton;
class QTableView;

namespace norvane::ui
{
class FilterBox;
}

namespace norvane::keys
{

/// A window beside the keyboard, which remains usable: a box for a text, a choice of what is looked for, and
/// the list of hits. A click on one leads to its key.
class KeyFinder : public QDialog
{
    Q_OBJECT

public:
    /// @p level must outlive the window.
    KeyFinder(const KeyLevel& level, std::shared_ptr<store::Database> database, QWidget* parent);

    /// Shows the window, its text ready to be typed over.
    void openToType();
    /// Searches again: keys or items may be others now.
    void refresh();

Q_SIGNALS:
    void placeWanted(const KeyPlace& place, const KeyCell& cell);
    /// The user asked to see the record of an item.
    void itemWanted(ItemKind kind, const QString& number);

private:
    void layOut();
    void connectControls();
    void showCount();
    void chooseFirst();
    void goTo(const QModelIndex& index);
    [[nodiscard]] bool canOpen() const;
    void openItem();
    void placeBeside();

    const KeyLevel& m_level;
    std::shared_ptr<store::Database> m_database;
    KeyHitList* m_hits;
    ui::FilterBox* m_text;
    QComboBox* m_filter;
    QTableView* m_list;
    QLabel* m_count;
    QPushButton* m_open;
    QStringList m_failures; ///< of the last search
};

} // namespace norvane::keys
