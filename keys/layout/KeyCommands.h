// What the user does with the chosen keys: the context menu of the grid, and its shortcuts.
#pragma once

#include "keys/layout/KeyEditor.h"

#include <QList>
#include <QObject>

class QAction;

namespace norvane::keys
{

class KeyGrid;

/// Adds its actions to the grid. Those of the clipboard and of the mark have their shortcuts in the grid
/// alone, since the same keys work on texts in lists and boxes; the others have them in the whole form.
class KeyCommands : public QObject
{
    Q_OBJECT

public:
    /// @p editor and @p grid must outlive this.
    KeyCommands(KeyEditor& editor, KeyGrid& grid, QObject* parent);

    /// Those that deserve a button, too.
    [[nodiscard]] QList<QAction*> viewActions() const { return m_view; }
    /// Whether the lists are shown. Checked at first.
    [[nodiscard]] QAction& lists() const { return *m_lists; }
    /// Whether many keys are being filled at once.
    [[nodiscard]] QAction& fill() const { return *m_fill; }

Q_SIGNALS:
    /// Keys were changed, or @p refusal says why not.
    void finished(Refusal refusal);
    void copied();
    void marked();
    void findWanted();

private:
    struct Entry;
    using Handler = void (KeyCommands::*)();

    void addAction(const Entry& entry);
    void addSwitches();
    void followEditor();
    void cut();
    void copy();
    void paste();
    void clear();
    void mark();
    void swapWithMarked();
    void undo();
    void redo();
    void showAll();
    void enlarge();
    void reduce();

    KeyEditor& m_editor;
    KeyGrid& m_grid;
    QAction* m_paste = nullptr;
    QAction* m_lists = nullptr;
    QAction* m_fill = nullptr;
    QList<QAction*> m_view;
};

} // namespace norvane::keys
