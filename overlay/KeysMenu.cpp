// See KeysMenu.h.
#include "overlay/KeysMenu.h"

#include "overlay/DocumentEditor.h"
#include "overlay/FindDialog.h"
#include "overlay/KeyboardView.h"
#include "overlay/KeyCategories.h"
#include "overlay/KeyKinds.h"
#include "overlay/LevelImport.h"
#include "overlay/StyleChooser.h"
#include "overlay/WholeWordsDialog.h"
#include "platform/RuntimeFailure.h"
#include "ui/FormKit.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace norvane::overlay
{
namespace
{

constexpr float letterStep = 0.5F; ///< points
constexpr float largestLetters = 2160;

QString countedKeys(int count)
{
    return count == 1 ? u"1 key"_s : u"%1 keys"_s.arg(count);
}

} // namespace

/// An entry; without a caption, a line.
struct KeysMenu::Entry {
    const char* name = "";
    const char* caption = "";
    Handler handler = nullptr;
    const char* keys = "";
    bool needsProgramme = false; ///< only for keyboards whose levels can be imported
};

KeysMenu::KeysMenu(DocumentEditor& editor, KeyboardView& keyboard, StyleChooser& style, QString databasePath,
                   QWidget* form)
    : QObject(form), m_editor(editor), m_keyboard(keyboard), m_style(style),
      m_databasePath(std::move(databasePath)), m_form(form)
{
    connectStyle();
    connect(&m_keyboard, &KeyboardView::selectionChanged, this, &KeysMenu::showSelection);
}

QMenu& KeysMenu::addTo(QMenuBar& bar)
{
    static constexpr Entry entries[] = {
        {"SelectAllKeys", "Select &All", &KeysMenu::selectAll, "Ctrl+Shift+A"},
        {"SelectColumn", "Select &Column", &KeysMenu::selectColumn},
        {"SelectKind", "Select by &Kind or Group...", &KeysMenu::selectKind, "", true},
        {},
        {"GiveColours", "&Give Colours", &KeysMenu::giveSample},
        {"GiveFont", "Give &Font", &KeysMenu::giveFont},
        {"Bold", "&Bold", &KeysMenu::makeBold, "Ctrl+B"},
        {"Italic", "&Italic", &KeysMenu::makeItalic, "Ctrl+I"},
        {"LargerLetters", "&Larger Letters", &KeysMenu::makeLarger},
        {"SmallerLetters", "&Smaller Letters", &KeysMenu::makeSmaller},
        {"ColourByGroup", "Colour by G&roup", &KeysMenu::colourByGroup, "", true},
        {},
        {"WholeWordsEntry", "&Whole Words...", &KeysMenu::setWholeWords},
        {"FindEntry", "Fin&d and Replace...", &KeysMenu::find, "Ctrl+F; Ctrl+H"},
    };
    QMenu* const menu = bar.addMenu(u"K&eys"_s);
    ui::nameControl(*menu, u"Keys"_s);
    for (const Entry& entry : entries) {
        if (entry.needsProgramme && !m_editor.document().geometry().hasImport)
            continue;
        QAction* const action = menu->addAction(QLatin1StringView(entry.caption));
        action->setObjectName(QLatin1StringView(entry.name));
        action->setSeparator(!entry.handler);
        action->setMenuRole(QAction::NoRole);
        action->setShortcuts(QKeySequence::listFromString(QLatin1StringView(entry.keys)));
        if (entry.handler)
            connect(action, &QAction::triggered, this, entry.handler);
    }
    return *menu;
}

/// Without a selection, a choice is for the clicks that follow.
void KeysMenu::connectStyle()
{
    const auto onSelection = [this](const auto& work) {
        return [this, work] {
            if (!m_keyboard.selection().isEmpty())
                work();
        };
    };
    connect(&m_style, &StyleChooser::backgroundChosen, this,
            onSelection([this] { giveColours(true, false); }));
    connect(&m_style, &StyleChooser::textColourChosen, this,
            onSelection([this] { giveColours(false, true); }));
    connect(&m_style, &StyleChooser::fontChosen, this, onSelection([this] { giveFont(); }));
}

void KeysMenu::showSelection()
{
    m_group = 0;
    const int count = m_keyboard.selection().count();
    Q_EMIT noticed(count == 0 ? QString()
                              : u"Selected: %1. Colours and fonts that you choose go to the selection."_s.arg(
                                    countedKeys(count)));
}

void KeysMenu::selectAll()
{
    m_keyboard.select(&KeySelection::selectAll);
}

void KeysMenu::selectColumn()
{
    const int key = m_editor.document().layout().keyIndex(m_keyboard.currentCell());
    m_keyboard.select([key](KeySelection& keys) { keys.selectColumn(key); });
}

void KeysMenu::selectKind()
{
    KeyKinds dialog(m_editor.document(), m_databasePath, m_form);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_keyboard.select([&](KeySelection& keys) { keys.select(dialog.choice().keys); });
    m_group = dialog.choice().group;
    if (m_group > 0) {
        Q_EMIT noticed(
            u"%1: colours that you choose are remembered for this group."_s.arg(dialog.choice().name));
    }
}

void KeysMenu::change(const QString& name, const std::function<void(TextCell&)>& work)
{
    m_editor.changeCells(name, m_keyboard.chosenCells(), work);
}

void KeysMenu::giveSample()
{
    giveColours(true, true);
}

/// A group's colours are those of its keys after the change.
void KeysMenu::giveColours(bool givesBackground, bool givesTextColour)
{
    const CurrentStyle& style = m_editor.style();
    const std::vector<int> cells = m_keyboard.chosenCells();
    m_editor.change(u"Colour"_s, [&](Document& document) {
        for (const int each : cells) {
            TextCell& cell = document.cell(each);
            cell.background = givesBackground ? style.background : cell.background;
            cell.textColour = givesTextColour ? style.textColour : cell.textColour;
        }
        const TextCell& first = document.cell(cells.front());
        if (m_group > 0)
            document.notes().groups[m_group] = {first.background, first.textColour};
    });
}

void KeysMenu::giveFont()
{
    if (const auto& font = m_editor.style().font) {
        change(u"Font"_s, [&font](TextCell& cell) { cell.font = *font; });
    } else {
        Q_EMIT noticed(u"Choose a font first: the entry \"Font\" of the menu."_s);
    }
}

/// Mixed styles become uniform first.
void KeysMenu::toggle(const QString& name, const std::function<bool&(TextCell&)>& style)
{
    const auto cells = m_keyboard.chosenCells();
    m_editor.change(name, [&](Document& document) {
        const bool isSet = std::ranges::all_of(cells, [&](int cell) { return style(document.cell(cell)); });
        for (const int cell : cells)
            style(document.cell(cell)) = !isSet;
    });
}

void KeysMenu::makeBold()
{
    toggle(u"Bold"_s, [](TextCell& cell) -> bool& { return cell.font.isBold; });
}

void KeysMenu::makeItalic()
{
    toggle(u"Italic"_s, [](TextCell& cell) -> bool& { return cell.font.isItalic; });
}

void KeysMenu::resize(int steps)
{
    change(u"Size"_s, [change = static_cast<float>(steps) * letterStep](TextCell& cell) {
        cell.font.size = std::clamp(cell.font.size + change, letterStep, largestLetters);
    });
}

void KeysMenu::colourByGroup()
{
    const DocumentNotes& notes = m_editor.document().notes();
    if (notes.level == 0 || notes.groups.empty()) {
        Q_EMIT noticed(u"No group has colours yet: import a level, select a group and choose its colours."_s);
        return;
    }
    try {
        const auto keys = keysOfLevel(m_editor.document().keyboard(), notes.level, m_databasePath);
        m_editor.change(u"Colour by Group"_s, [&](Document& document) { giveGroupColours(document, keys); });
    } catch (const RuntimeFailure& failure) {
        Q_EMIT noticed(failure.text());
    }
}

void KeysMenu::setWholeWords()
{
    const Document& document = m_editor.document();
    WholeWordsDialog dialog(document, m_keyboard.selection().keys(),
                            readProgrammeTexts(document.keyboard(), m_databasePath), m_form);
    connect(&dialog, &WholeWordsDialog::keyShown, this,
            [&](int key) { m_keyboard.makeCurrent(document.layout().key(key).firstCell); });
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_editor.change(u"Whole Words"_s, [&](Document& changed) { changed = dialog.outcome(); });
    std::vector<int> unfit;
    for (const UnfitKey& each : dialog.result().unfit)
        unfit.push_back(each.key);
    if (!unfit.empty())
        m_keyboard.select([&](KeySelection& keys) { keys.select(unfit); });
    QString notice = u"Set in whole words: %1."_s.arg(countedKeys(dialog.result().changedKeys));
    if (!unfit.empty())
        notice += u" Too long, and selected: %1."_s.arg(countedKeys(static_cast<int>(unfit.size())));
    Q_EMIT noticed(notice);
}

void KeysMenu::find()
{
    if (!m_find)
        m_find = new FindDialog(m_editor, m_keyboard, m_form);
    m_find->openAgain();
}

} // namespace norvane::overlay
