// See KeyLayout.h.
#include "keys/layout/KeyLayout.h"

#include "base/LossQuestion.h"
#include "keys/KeyDatabase.h"
#include "keys/layout/copylevel.h"
#include "keys/layout/KeyCommands.h"
#include "keys/layout/KeyFillBar.h"
#include "keys/layout/KeyGrid.h"
#include "keys/layout/KeyListPanel.h"
#include "keys/layout/KeyQuestions.h"
#include "keys/layout/KeySearch.h"
#include "keys/layout/LevelRow.h"
#include "keys/layout/LevelTools.h"
#include "keys/SaveOrTell.h"
#include "platform/Boxes.h"
#include "ui/FindBar.h"
#include "ui/StatusLine.h"

#include <QAction>
#include <QCloseEvent>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

/// As many keys as are chosen on purpose or by mistake: from here on the user is asked.
constexpr std::size_t askedBlock = 4;

} // namespace

KeyLayout::KeyLayout(const KeyGeometry& keyboard, ApplicationValues& values, Boxes& boxes, QWidget* parent)
    : QDialog(parent), m_values(values), m_boxes(boxes), m_database(openCustomerDatabase(values)),
      m_level(keyboard, m_database), Grid1(nullptr)
{
    setObjectName(keyboard.form);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_level.read(1);
    Grid1 = new KeyGrid(&m_model, this);
    m_commands = new KeyCommands(m_editor, *Grid1, this);
    m_lists = new KeyListPanel(m_database, this);
    m_fill = new KeyFillBar(m_level, *Grid1, *m_lists, this);
    m_levels = new LevelRow(this);
    m_status = new ui::StatusLine(this);
    layOut();
    addTools();
    addCommands();
    connectParts();
    Grid1->setCurrentCell({0, 0});
    showLevel();
    Grid1->setFocus();
    fitScreen();
}

/// Enter on a key leads to the lists, also while they are folded away.
void KeyLayout::enterList()
{
    m_commands->lists().setChecked(true);
    m_lists->enterList();
}

void KeyLayout::updategrid(int level)
{
    m_level.read(level);
    m_editor.levelWasRead();
    showLevel();
}

void KeyLayout::showLevel()
{
    const QString words = u"Keyboard Level. %1"_s.arg(m_level.level());
    setWindowTitle(words);
    m_levels->showLevel(words, m_level.level());
    m_fill->showPreview();
    find();
    showChanges();
    showKey();
}

std::optional<bool> KeyLayout::askToSave()
{
    return m_boxes.askBeforeGoingOn(u"Save Changes?"_s, u"Save Details."_s);
}

/// @return false when nothing was stored.
bool KeyLayout::SaveGrid()
{
    if (!saveOrTell(m_boxes, [this] { m_level.save(); }))
        return false;
    finish(Refusal::None);
    m_status->setNotice(u"Saved level %1"_s.arg(m_level.level()));
    return true;
}

void KeyLayout::askAndSave()
{
    if (askToSave() == true)
        SaveGrid();
}

/// @return false if the level is kept: the user has closed the question, or it could not be saved.
bool KeyLayout::leaveLevel()
{
    const std::optional<bool> answer = askToSave();
    return answer == true ? SaveGrid() : answer.has_value();
}

/// The question comes every time, whether anything has changed or not.
void KeyLayout::changeLevel(int level)
{
    if (leaveLevel()) {
        updategrid(level);
        // A selection of the previous level would be moved with the next key that is dragged.
        Grid1->setCurrentCell(Grid1->currentCell());
        Grid1->setFocus();
    } else {
        showLevel();
    }
}

/// The level is read again afterwards, so that changes are asked about first.
void KeyLayout::copyLevels()
{
    if (m_level.differs() && !leaveLevel())
        return;
    copylevel form(*m_database, m_level.geometry(), m_values, m_boxes, this);
    const bool isCopied = form.exec() == Accepted;
    updategrid(isCopied ? form.copiedTo() : m_level.level());
}

/// On another level, changes of this one are asked about first.
void KeyLayout::goTo(const KeyPlace& place, KeyCell cell)
{
    if (place.level != m_level.level()) {
        if (m_level.differs() && !leaveLevel())
            return;
        updategrid(place.level);
    }
    Grid1->setCurrentCell(cell);
    Grid1->scrollTo(Grid1->currentIndex());
}

void KeyLayout::itemsChanged()
{
    m_level.readItems();
    finish(Refusal::None);
    m_tools->itemClosed();
}

void KeyLayout::assign(ItemKind kind, const QString& number, bool byEnter)
{
    const KeyCells cells = m_editor.programmable(Grid1->chosenCells());
    if (mayAssign(cells, kind, number)) {
        m_editor.assign(cells.empty() ? KeyCells{Grid1->currentCell()} : cells, kind, number);
        finish(Refusal::None);
        if (m_lists->goesOn())
            goToNextKey();
    }
    if (byEnter && !m_lists->goesOn())
        Grid1->setFocus();
}

void KeyLayout::goToNextKey()
{
    const KeyCell last = inReadingOrder(Grid1->chosenCells()).back();
    Grid1->setCurrentCell(keyAfter(m_level.geometry(), last).value_or(last));
}

void KeyLayout::showFill(bool isOpen)
{
    m_fill->setOpen(isOpen);
    if (isOpen) {
        enterList();
    } else {
        Grid1->setFocus();
    }
}

/// What Enter begins with several rows marked, Enter ends.
void KeyLayout::fillOrShowFill()
{
    if (m_commands->fill().isChecked()) {
        m_fill->put();
    } else {
        m_commands->fill().setChecked(true);
    }
}

/// The user has seen on which keys the items go.
void KeyLayout::fill(const FillPlan& plan)
{
    const auto comesBackAsPlu = [](const FilledKey& placed) {
        return placed.key.function == pluFunction;
    };
    if (std::ranges::any_of(plan.keys, comesBackAsPlu) && !askBeforeLoss(m_boxes, pluFunctionQuestion()))
        return;
    m_commands->fill().setChecked(false);
    m_editor.place(plan.keys);
    finish(Refusal::None);
    Grid1->setCurrentCell(plan.keys.back().cell);
    goToNextKey();
    m_status->setNotice(u"Filled %1 keys"_s.arg(plan.keys.size()));
}

bool KeyLayout::mayAssign(const KeyCells& cells, ItemKind kind, const QString& number)
{
    if (cells.size() >= askedBlock && !askBeforeLoss(m_boxes, blockQuestion(cells.size())))
        return false;
    const bool comesBackAsPlu = kind == ItemKind::Function && number == pluFunction &&
                                !std::ranges::all_of(cells, [this](KeyCell cell) {
                                    return m_level.key(cell).function == pluFunction;
                                });
    return !comesBackAsPlu || askBeforeLoss(m_boxes, pluFunctionQuestion());
}

/// What is chosen follows the keys to their new place.
void KeyLayout::drop(KeyCell target, bool copies)
{
    const KeyCells cells = Grid1->chosenCells();
    const KeyCell from = Grid1->currentCell();
    const Refusal refusal =
        copies ? m_editor.copyTo(cells, from, target) : m_editor.swap(cells, from, target);
    if (refusal == Refusal::None)
        Grid1->choose(movedBy(cells, target - from), target);
    finish(refusal);
}

/// After each change, or instead of it.
void KeyLayout::finish(Refusal refusal)
{
    m_model.refresh();
    m_fill->showPreview();
    find();
    showChanges();
    showKey();
    m_status->setNotice(refusalText(refusal));
    if (refusal != Refusal::None)
        m_boxes.beep();
}

void KeyLayout::showChanges()
{
    m_levels->showChanged(m_level.differs());
    m_tools->levelChanged();
}

void KeyLayout::find()
{
    const QString part = m_find->sought().trimmed();
    m_found = cellsWith(m_level, part);
    m_model.setFound(m_found);
    const QString outcome = part.isEmpty() ? QString() : u"%1 found"_s.arg(m_found.size());
    if (outcome != m_find->outcome())
        m_find->showOutcome(outcome);
}

/// Row by row; the first follows the last.
void KeyLayout::goOnFinding(int step)
{
    if (step == 0)
        find();
    if (step == 0 || m_found.empty())
        return;
    const auto order = [](KeyCell cell) {
        return std::pair(cell.row, cell.column);
    };
    const auto next = std::ranges::upper_bound(m_found, order(Grid1->currentCell()), {}, order);
    Grid1->setCurrentCell(next == m_found.end() ? m_found.front() : *next);
}

void KeyLayout::showKey()
{
    const KeyCell cell = Grid1->currentCell();
    const Key& key = m_level.key(cell);
    const auto number = m_level.geometry().keyNumber(cell);
    m_status->setStep(number ? u"Key %1: %2"_s.arg(*number).arg(key.text) : key.text);
    showPlaces(key);
}

void KeyLayout::showItem(ItemKind kind, const QString& number)
{
    const std::optional<Key> key = m_level.items().keyFor(kind, number);
    m_status->setStep(key ? key->text : QString(itemTable(kind).missingEntry));
    showPlaces(key.value_or(Key()));
}

void KeyLayout::showPlaces(const Key& key)
{
    const std::vector<KeyPlace> places = keysLike(key, m_level, *m_database);
    const bool isItem = !key.function.isEmpty();
    m_status->setRunning(places.empty() && isItem ? u"on no key"_s : placesText(places));
    m_status->setNotice({});
    m_status->setToolTip(m_status->currentMessage());
}

void KeyLayout::reject()
{
    if (m_commands->fill().isChecked()) {
        m_commands->fill().setChecked(false);
    } else if (!m_find->sought().isEmpty()) {
        m_find->clear();
        Grid1->setFocus();
    } else if (!m_editor.marked().empty()) {
        m_editor.mark({});
        m_model.refresh();
    } else if (!Grid1->hasFocus()) {
        m_lists->clearFilter();
        Grid1->setFocus();
    } else {
        close();
    }
}

void KeyLayout::closeEvent(QCloseEvent* event)
{
    event->setAccepted(!m_level.differs() || leaveLevel());
    if (event->isAccepted())
        done(Rejected);
}

} // namespace norvane::keys
