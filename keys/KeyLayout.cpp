// Controls and handlers of the keyboard layout editor; see KeyLayout.h.
#include "keys/KeyLayout.h"

#include "base/LossQuestion.h"
#include "keys/copylevel.h"
#include "keys/KeyCellDelegate.h"
#include "keys/KeyDatabase.h"
#include "keys/KeyGrid.h"
#include "keys/KeyListPanel.h"
#include "keys/KeySearch.h"
#include "platform/Boxes.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"
#include "ui/StatusLine.h"

#include <QAction>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr int levelButtonWidth = 64;
constexpr int findWidth = 180;
/// What a window's frame and a desktop's bars take of the screen.
constexpr QSize frameRoom(16, 60);

QString refusalText(Refusal refusal)
{
    switch (refusal) {
    case Refusal::FixedKey:
        return u"A fixed key does the same on every register and cannot be moved or replaced."_s;
    case Refusal::Outside:
        return u"The keys would stand outside the keyboard."_s;
    case Refusal::NoKeys:
        return u"No keys were copied or marked."_s;
    case Refusal::None:
        break;
    }
    return {};
}

QString pluFunctionQuestion()
{
    return u"Function key 200 goes to the registers as \"0200\", which is a PLU key there, and comes back "
           u"from them as a PLU key.\r\rPut it on the key all the same?"_s;
}

QPushButton* makeFormButton(const QString& name, const QString& caption, QWidget* form)
{
    QPushButton* const button = ui::makeButton(name, caption, form);
    // Enter belongs to the grid and the lists.
    button->setAutoDefault(false);
    return button;
}

} // namespace

KeyLayout::KeyLayout(const KeyGeometry& keyboard, ApplicationValues& values, Boxes& boxes, QWidget* parent)
    : QDialog(parent), m_boxes(boxes), m_database(openCustomerDatabase(values)),
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

void KeyLayout::layOut()
{
    auto* const body = new QHBoxLayout;
    body->setSpacing(ui::spacing::groupGap);
    body->addWidget(Grid1, 1);
    body->addWidget(m_lists);
    m_status = new ui::StatusLine(this);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(ui::spacing::formMargin, ui::spacing::controlGap, ui::spacing::formMargin, 0);
    column->setSpacing(ui::spacing::controlGap);
    column->addLayout(makeLevelRow());
    column->addLayout(body, 1);
    column->addLayout(makeFindRow());
    column->addWidget(m_status);
}

QLayout* KeyLayout::makeLevelRow()
{
    Label1 = new QLabel(this);
    ui::nameControl(*Label1, u"Label1"_s);
    QFont heading = font();
    heading.setBold(true);
    Label1->setFont(heading);
    m_star = new QLabel(u"*"_s, this);
    ui::nameControl(*m_star, u"LevelChanged"_s);
    m_star->setToolTip(u"This level differs from what is stored."_s);
    m_star->setFont(heading);
    m_star->setMinimumWidth(m_star->sizeHint().width());
    auto* const row = new QHBoxLayout;
    row->setSpacing(ui::spacing::controlGap);
    row->addWidget(Label1);
    row->addWidget(m_star);
    row->addSpacing(ui::spacing::groupGap);
    for (int level = 1; level <= levelCount; ++level)
        row->addWidget(makeLevelButton(level));
    QPushButton* const copy = makeFormButton(u"CSCmdBtn8"_s, u"Copy Levels"_s, this);
    connect(copy, &QPushButton::clicked, this, &KeyLayout::copyLevels);
    row->addSpacing(ui::spacing::groupGap);
    row->addWidget(copy);
    row->addStretch();
    return row;
}

QPushButton* KeyLayout::makeLevelButton(int level)
{
    // CSCmdBtn3 is level 1.
    QPushButton* const button =
        makeFormButton(u"CSCmdBtn%1"_s.arg(level + 2), u"Level %1"_s.arg(level), this);
    button->setMinimumWidth(levelButtonWidth);
    button->setCheckable(true);
    connect(button, &QPushButton::clicked, this, [this, level] { changeLevel(level); });
    m_levels.push_back(button);
    return button;
}

QLayout* KeyLayout::makeFindRow()
{
    m_find = new QLineEdit(this);
    ui::nameControl(*m_find, u"KeyFind"_s);
    m_find->setFixedWidth(findWidth);
    m_find->setClearButtonEnabled(true);
    m_find->setToolTip(u"Marks the keys of this level with this text (Ctrl+F); Enter goes to the next"_s);
    auto* const label = new QLabel(u"&Find keys:"_s, this);
    label->setBuddy(m_find);
    m_findOutcome = new QLabel(this);
    ui::nameControl(*m_findOutcome, u"KeyFindOutcome"_s);
    QPushButton* const store = makeFormButton(u"CSCmdBtn1"_s, u"&Save"_s, this);
    QPushButton* const leave = makeFormButton(u"CSCmdBtn2"_s, u"E&xit"_s, this);
    connect(store, &QPushButton::clicked, this, &KeyLayout::askAndSave);
    // Without any question: what is not saved is lost.
    connect(leave, &QPushButton::clicked, this, [this] { done(Rejected); });
    auto* const row = new QHBoxLayout;
    row->setSpacing(ui::spacing::controlGap);
    row->addWidget(label);
    row->addWidget(m_find);
    row->addWidget(m_findOutcome, 1);
    row->addWidget(new KeyLegend(this));
    row->addSpacing(ui::spacing::groupGap);
    row->addWidget(store);
    row->addWidget(leave);
    return row;
}

void KeyLayout::connectParts()
{
    connect(Grid1, &KeyGrid::entered, m_lists, &KeyListPanel::enterList);
    connect(Grid1, &KeyGrid::currentCellChanged, this, &KeyLayout::tellKey);
    connect(m_lists, &KeyListPanel::chosen, this, &KeyLayout::assign);
    connect(m_lists, &KeyListPanel::looked, this, &KeyLayout::tellItem);
    connect(m_find, &QLineEdit::textChanged, this, &KeyLayout::find);
    connect(m_find, &QLineEdit::returnPressed, this, &KeyLayout::goToNextFound);
    connect(&m_model, &KeyGridModel::dropped, this, [this](KeyCell target, bool copies) {
        const KeyCells cells = Grid1->chosenCells();
        const KeyCell from = Grid1->currentCell();
        finish(copies ? m_editor.copyTo(cells, from, target) : m_editor.swap(cells, from, target));
    });
}

/// The actions of the grid's context menu, each with its keys.
void KeyLayout::addActions()
{
    const auto inGrid = Qt::WidgetShortcut;
    const auto inForm = Qt::WindowShortcut;
    addAction(u"Cut"_s, u"Cu&t"_s, {QKeySequence::Cut}, inGrid,
              [this] { finish(m_editor.cut(Grid1->chosenCells())); });
    addAction(u"Copy"_s, u"&Copy"_s, {QKeySequence::Copy}, inGrid,
              [this] { m_editor.copy(Grid1->chosenCells()); });
    addAction(u"Paste"_s, u"&Paste"_s, {QKeySequence::Paste}, inGrid,
              [this] { finish(m_editor.paste(Grid1->chosenCells())); });
    addAction(u"Clear"_s, u"C&lear"_s, {QKeySequence::Delete}, inGrid,
              [this] { finish(m_editor.clear(Grid1->chosenCells())); });
    addAction(u"Mark"_s, u"&Mark"_s, {u"Ctrl+M"_s}, inGrid, [this] {
        m_editor.mark(Grid1->chosenCells());
        m_model.refresh();
    });
    addAction(u"SwapWithMarked"_s, u"&Swap with marked key"_s, {u"Ctrl+E"_s}, inGrid,
              [this] { finish(m_editor.swapWithMarked(Grid1->chosenCells())); });
    m_undo = addAction(u"Undo"_s, u"&Undo"_s, {QKeySequence(u"Ctrl+Z"_s)}, inForm, [this] {
        m_editor.undo();
        finish(Refusal::None);
    });
    m_redo = addAction(u"Redo"_s, u"&Redo"_s, {u"Ctrl+Y"_s, u"Ctrl+Shift+Z"_s}, inForm, [this] {
        m_editor.redo();
        finish(Refusal::None);
    });
    addAction(u"Find"_s, u"&Find"_s, {u"Ctrl+F"_s}, inForm, [this] {
        m_find->setFocus();
        m_find->selectAll();
    });
}

QAction* KeyLayout::addAction(const QString& name, const QString& caption, const QList<QKeySequence>& keys,
                              Qt::ShortcutContext context, const std::function<void()>& run)
{
    auto* const action = new QAction(caption, this);
    action->setObjectName(name);
    action->setShortcuts(keys);
    action->setShortcutContext(context);
    connect(action, &QAction::triggered, this, run);
    Grid1->addAction(action);
    return action;
}

void KeyLayout::fitScreen()
{
    const QSize free = screen()->availableSize() - frameRoom;
    QSize wanted = sizeHint();
    if (wanted.width() > free.width())
        wanted.rheight() += Grid1->horizontalScrollBar()->sizeHint().height();
    resize(wanted.boundedTo(free));
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

void KeyLayout::SaveGrid()
{
    m_level.save();
    finish(Refusal::None);
    m_status->setNotice(u"Saved level %1"_s.arg(m_level.level()));
}

void KeyLayout::askAndSave()
{
    if (askToSave() == true)
        SaveGrid();
}

/// @return false when the level stays: the user has closed the question.
bool KeyLayout::leaveLevel()
{
    const std::optional<bool> answer = askToSave();
    if (answer == true)
        SaveGrid();
    return answer.has_value();
}

/// The question comes every time, whether anything has changed or not.
void KeyLayout::changeLevel(int level)
{
    if (leaveLevel()) {
        updategrid(level);
    } else {
        showLevel();
    }
}

/// The level is read afresh afterwards, so that changes are asked about first.
void KeyLayout::copyLevels()
{
    if (m_level.differs() && !leaveLevel())
        return;
    copylevel form(*m_database, m_level.geometry(), m_boxes, this);
    const bool isCopied = form.exec() == Accepted;
    updategrid(isCopied ? form.copiedTo() : m_level.level());
}

void KeyLayout::assign(ItemKind kind, const QString& number, bool byEnter)
{
    if (mayAssign(kind, number)) {
        m_editor.assign(Grid1->currentCell(), kind, number);
        finish(Refusal::None);
    }
    if (byEnter)
        Grid1->setFocus();
}

bool KeyLayout::mayAssign(ItemKind kind, const QString& number)
{
    const Key& key = m_level.key(Grid1->currentCell());
    const bool comesBackAsPlu =
        kind == ItemKind::Function && number == pluFunction && key.function != pluFunction;
    return !comesBackAsPlu || key.state == KeyState::Fixed || askBeforeLoss(m_boxes, pluFunctionQuestion());
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
}

void KeyLayout::find()
{
    const QString part = m_find->text().trimmed();
    m_found = cellsWith(m_level, part);
    m_model.setFound(m_found);
    m_findOutcome->setText(part.isEmpty() ? QString() : u"%1 found"_s.arg(m_found.size()));
}

/// Row by row; behind the last one comes the first.
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
