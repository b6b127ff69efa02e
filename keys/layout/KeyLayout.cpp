// What the keyboard layout editor does; see KeyLayout.h.
#include "keys/layout/KeyLayout.h"

#include "base/LossQuestion.h"
#include "keys/KeyDatabase.h"
#include "keys/layout/copylevel.h"
#include "keys/layout/KeyGrid.h"
#include "keys/layout/KeyListPanel.h"
#include "keys/layout/KeySearch.h"
#include "keys/SaveOrTell.h"
#include "platform/Boxes.h"
#include "ui/Announcement.h"
#include "ui/StatusLine.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

QString refusalText(Refusal refusal)
{
    switch (refusal) {
    case Refusal::FixedKey:
        return u"A fixed key does the same on every register and cannot be moved or replaced."_s;
    case Refusal::Outside:
        return u"The keys would be outside the keyboard."_s;
    case Refusal::NoKeys:
        return u"No keys were copied or marked."_s;
    case Refusal::None:
        break;
    }
    return {};
}

/// As many keys as are chosen on purpose or by mistake: from here on the user is asked.
constexpr std::size_t askedBlock = 4;

QString blockQuestion(std::size_t keys)
{
    return u"%1 keys are selected. Put this entry on all of them?"_s.arg(keys);
}

QString pluFunctionQuestion()
{
    return u"Function key 200 goes to the registers as \"0200\", which is a PLU key there, and comes back "
           u"from them as a PLU key.\r\rPut it on the key all the same?"_s;
}

} // namespace

KeyLayout::KeyLayout(const KeyGeometry& keyboard, ApplicationValues& values, Boxes& boxes, QWidget* parent)
    : QDialog(parent), m_values(values), m_boxes(boxes), m_database(openCustomerDatabase(values)),
      m_level(keyboard, m_database), Grid1(nullptr)
{
    setObjectName(keyboard.form);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_level.read(1);
    Grid1 = new KeyGrid(&m_model, this);
    m_lists = new KeyListPanel(m_database, this);
    layOut();
    addActions();
    connectParts();
    Grid1->setCurrentCell({0, 0});
    showLevel();
    Grid1->setFocus();
    fitScreen();
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
    Label1->setText(words);
    for (std::size_t button = 0; button < m_levels.size(); ++button)
        m_levels[button]->setChecked(static_cast<int>(button) + 1 == m_level.level());
    find();
    showChanges();
    tellKey();
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

void KeyLayout::assign(ItemKind kind, const QString& number, bool byEnter)
{
    const KeyCells cells = m_editor.programmable(Grid1->chosenCells());
    if (mayAssign(cells, kind, number)) {
        m_editor.assign(cells.empty() ? KeyCells{Grid1->currentCell()} : cells, kind, number);
        finish(Refusal::None);
    }
    if (byEnter)
        Grid1->setFocus();
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
    find();
    showChanges();
    tellKey();
    m_status->setNotice(refusalText(refusal));
    if (refusal != Refusal::None)
        m_boxes.beep();
}

void KeyLayout::showChanges()
{
    m_star->setText(m_level.differs() ? u"*"_s : QString());
    m_undo->setEnabled(m_editor.canUndo());
    m_redo->setEnabled(m_editor.canRedo());
    m_paste->setEnabled(m_editor.canPaste());
}

void KeyLayout::find()
{
    const QString part = m_find->text().trimmed();
    m_found = cellsWith(m_level, part);
    m_model.setFound(m_found);
    const QString outcome = part.isEmpty() ? QString() : u"%1 found"_s.arg(m_found.size());
    if (outcome != m_findOutcome->text())
        ui::announce(*m_findOutcome, outcome);
    m_findOutcome->setText(outcome);
}

/// Row by row; the first follows the last.
void KeyLayout::goToNextFound()
{
    if (m_found.empty())
        return;
    const auto order = [](KeyCell cell) {
        return std::pair(cell.row, cell.column);
    };
    const auto next = std::ranges::upper_bound(m_found, order(Grid1->currentCell()), {}, order);
    Grid1->setCurrentCell(next == m_found.end() ? m_found.front() : *next);
}

void KeyLayout::tellKey()
{
    const KeyCell cell = Grid1->currentCell();
    const Key& key = m_level.key(cell);
    const auto number = m_level.geometry().keyNumber(cell);
    m_status->setStep(number ? u"Key %1: %2"_s.arg(*number).arg(key.text) : key.text);
    tellPlaces(key);
}

void KeyLayout::tellItem(ItemKind kind, const QString& number)
{
    const std::optional<Key> key = m_level.items().keyFor(kind, number);
    m_status->setStep(key ? key->text : QString(itemTable(kind).missingEntry));
    tellPlaces(key.value_or(Key()));
}

void KeyLayout::tellPlaces(const Key& key)
{
    const std::vector<KeyPlace> places = keysLike(key, m_level, *m_database);
    const bool isItem = !key.function.isEmpty();
    m_status->setRunning(places.empty() && isItem ? u"on no key"_s : placesText(places));
    m_status->setNotice({});
    m_status->setToolTip(m_status->currentMessage());
}

void KeyLayout::reject()
{
    if (!m_find->text().isEmpty()) {
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
