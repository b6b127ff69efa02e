// See KeyCommands.h.
#include "keys/layout/KeyCommands.h"

#include "keys/layout/KeyGrid.h"

#include <QAction>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr auto inGrid = Qt::WidgetShortcut;
constexpr auto inForm = Qt::WindowShortcut;

} // namespace

/// A menu entry; without a name a separator.
struct KeyCommands::Entry {
    const char* name = "";
    const char* caption = "";
    const char* keys = "";
    Qt::ShortcutContext context = inGrid;
    Handler handler = nullptr;
};

KeyCommands::KeyCommands(KeyEditor& editor, KeyGrid& grid, QObject* parent)
    : QObject(parent), m_editor(editor), m_grid(grid)
{
    static constexpr std::array<Entry, 18> entries = {{
        {"Cut", "Cu&t", "Ctrl+X", inGrid, &KeyCommands::cut},
        {"Copy", "&Copy", "Ctrl+C", inGrid, &KeyCommands::copy},
        {"Paste", "&Paste", "Ctrl+V", inGrid, &KeyCommands::paste},
        {"Clear", "C&lear", "Del", inGrid, &KeyCommands::clear},
        {},
        {"Mark", "&Mark", "Ctrl+M", inGrid, &KeyCommands::mark},
        {"SwapWithMarked", "&Swap with marked key", "Ctrl+E", inGrid, &KeyCommands::swapWithMarked},
        {},
        {"Undo", "&Undo", "Ctrl+Z", inForm, &KeyCommands::undo},
        {"Redo", "&Redo", "Ctrl+Y; Ctrl+Shift+Z", inForm, &KeyCommands::redo},
        {},
        {"Find", "&Find", "Ctrl+F", inForm, &KeyCommands::findWanted},
        {},
        {"WholeKeyboard", "&Whole Keyboard", "Ctrl+0", inForm, &KeyCommands::showAll},
        {"Smaller", "Sm&aller", "Ctrl+-", inForm, &KeyCommands::reduce},
        {"Larger", "Lar&ger", "Ctrl++; Ctrl+=", inForm, &KeyCommands::enlarge},
        {"Lists", "L&ists", "F9", inForm, nullptr},
        {"Fill", "Fill &Keys", "Ctrl+K", inForm, nullptr},
    }};
    for (const Entry& entry : entries)
        addAction(entry);
    followEditor();
    addSwitches();
}

void KeyCommands::addSwitches()
{
    for (const char* const name : {"WholeKeyboard", "Smaller", "Larger", "Lists", "Fill"})
        m_view += findChild<QAction*>(QLatin1StringView(name));
    m_lists = m_view[3];
    m_fill = m_view[4];
    m_lists->setCheckable(true);
    m_lists->setChecked(true);
    m_fill->setCheckable(true);
}

void KeyCommands::addAction(const Entry& entry)
{
    auto* const action = new QAction(QLatin1StringView(entry.caption), this);
    m_grid.addAction(action);
    if (*entry.name == '\0') {
        action->setSeparator(true);
        return;
    }
    action->setObjectName(QLatin1StringView(entry.name));
    action->setShortcuts(QKeySequence::listFromString(QLatin1StringView(entry.keys)));
    action->setShortcutContext(entry.context);
    if (entry.handler != nullptr)
        connect(action, &QAction::triggered, this, entry.handler);
}

/// Undo, Redo and Paste are disabled while they would do nothing.
void KeyCommands::followEditor()
{
    m_paste = findChild<QAction*>(u"Paste"_s);
    auto* const undo = findChild<QAction*>(u"Undo"_s);
    auto* const redo = findChild<QAction*>(u"Redo"_s);
    for (QAction* const action : {m_paste, undo, redo})
        action->setEnabled(false);
    connect(&m_editor.history(), &QUndoStack::canUndoChanged, undo, &QAction::setEnabled);
    connect(&m_editor.history(), &QUndoStack::canRedoChanged, redo, &QAction::setEnabled);
}

void KeyCommands::cut()
{
    const Refusal refusal = m_editor.cut(m_grid.chosenCells());
    m_paste->setEnabled(m_editor.canPaste());
    Q_EMIT finished(refusal);
}

void KeyCommands::copy()
{
    m_editor.copy(m_grid.chosenCells());
    m_paste->setEnabled(m_editor.canPaste());
    Q_EMIT copied();
}

void KeyCommands::paste()
{
    Q_EMIT finished(m_editor.paste(m_grid.chosenCells()));
}

void KeyCommands::clear()
{
    Q_EMIT finished(m_editor.clear(m_grid.chosenCells()));
}

void KeyCommands::mark()
{
    m_editor.mark(m_grid.chosenCells());
    Q_EMIT marked();
}

void KeyCommands::swapWithMarked()
{
    Q_EMIT finished(m_editor.swapWithMarked(m_grid.chosenCells()));
}

void KeyCommands::undo()
{
    m_editor.history().undo();
    Q_EMIT finished(Refusal::None);
}

void KeyCommands::redo()
{
    m_editor.history().redo();
    Q_EMIT finished(Refusal::None);
}

void KeyCommands::showAll()
{
    m_grid.fitKeyboard();
}

void KeyCommands::enlarge()
{
    m_grid.zoomBy(1);
}

void KeyCommands::reduce()
{
    m_grid.zoomBy(-1);
}

} // namespace norvane::keys
