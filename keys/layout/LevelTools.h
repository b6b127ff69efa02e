// What can be done with whole levels, and with what keys hold: the menu "More" of the editor.
#pragma once

#include "base/ApplicationValues.h"
#include "keys/KeyPlaces.h"
#include "keys/layout/KeyEditor.h"
#include "keys/layout/LevelExchange.h"

#include <QObject>

#include <memory>
#include <optional>

class QPushButton;
class QWidget;

namespace norvane
{
class Boxes;
}

namespace norvane::keys
{

class KeyFinder;
class KeyGrid;

/// What the tools work on. All of it must outlive them.
struct LevelGround {
    KeyLevel& level;
    KeyEditor& editor;
    KeyGrid& grid;
    const std::shared_ptr<store::Database>& database;
    const ApplicationValues& values;
    Boxes& boxes;
    QWidget& form;
};

/// Has its shortcuts in the whole form.
class LevelTools : public QObject
{
    Q_OBJECT

public:
    explicit LevelTools(const LevelGround& ground);

    /// The button with the menu, to be placed by the form.
    [[nodiscard]] QPushButton* menuButton() const { return m_button; }
    /// Keys were changed, or another level is shown.
    void levelChanged();
    /// The record of an item, which itemWanted() asked for, was closed.
    void itemClosed();
    void find();

Q_SIGNALS:
    void placeWanted(const norvane::keys::KeyPlace& place, const norvane::keys::KeyCell& cell);
    /// The user asked to see the record of an item, by its number without leading zeros.
    void itemWanted(norvane::keys::ItemKind kind, const QString& number);

    /// Keys were changed, by one step of the history.
    void changed();
    /// The outcome of the last tool, in words.
    void noticed(const QString& text);

private:
    using Handler = void (LevelTools::*)();
    struct Entry;

    void addActions();
    void openItem();
    void openFound(ItemKind kind, const QString& number);
    void compareLevels();
    void exportLevel();
    void importLevel();
    void showMap();

    LevelGround m_ground;
    LevelExchange m_exchange;
    QPushButton* m_button;
    KeyFinder* m_finder = nullptr; ///< once it was opened
    bool m_isFound = false;        ///< the open item was opened from the list of hits
};

} // namespace norvane::keys
