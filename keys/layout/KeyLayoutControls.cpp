// Controls and actions of the keyboard layout editor; see KeyLayout.h.
#include "keys/layout/KeyCellDelegate.h"
#include "keys/layout/KeyGrid.h"
#include "keys/layout/KeyLayout.h"
#include "keys/layout/KeyListPanel.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"
#include "ui/StatusLine.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

/// In the lists and boxes, the same keys work on texts.
constexpr auto inGrid = Qt::WidgetShortcut;
constexpr auto inForm = Qt::WindowShortcut;

constexpr int levelButtonWidth = 64;
constexpr int findWidth = 180;
constexpr int narrowestFind = 80;
/// What a window's frame and a desktop's bars take of the screen.
constexpr QSize frameRoom(16, 60);

QPushButton* makeFormButton(const QString& name, const QString& caption, QWidget* form)
{
    QPushButton* const button = ui::makeButton(name, caption, form);
    // Enter belongs to the grid and the lists.
    button->setAutoDefault(false);
    return button;
}

QLabel* makeHeading(const QString& name, const QString& text, QWidget* form)
{
    auto* const heading = new QLabel(text, form);
    ui::nameControl(*heading, name);
    QFont bold = form->font();
    bold.setBold(true);
    heading->setFont(bold);
    return heading;
}

} // namespace

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
    Label1 = makeHeading(u"Label1"_s, {}, this);
    m_star = makeHeading(u"LevelChanged"_s, u"*"_s, this);
    m_star->setToolTip(u"This level differs from what is stored."_s);
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
    button->setMinimumWidth(ui::scaled(levelButtonWidth));
    button->setCheckable(true);
    connect(button, &QPushButton::clicked, this, [this, level] { changeLevel(level); });
    m_levels.push_back(button);
    return button;
}

void KeyLayout::makeFind(QHBoxLayout& row)
{
    m_find = new QLineEdit(this);
    ui::nameControl(*m_find, u"KeyFind"_s);
    m_find->setMinimumWidth(ui::scaled(narrowestFind));
    m_find->setMaximumWidth(ui::scaled(findWidth));
    m_find->setClearButtonEnabled(true);
    m_find->setToolTip(u"Marks the keys of this level with this text (Ctrl+F); Enter goes to the next"_s);
    auto* const label = new QLabel(u"&Find keys:"_s, this);
    label->setBuddy(m_find);
    m_findOutcome = new QLabel(this);
    ui::nameControl(*m_findOutcome, u"KeyFindOutcome"_s);
    row.addWidget(label);
    row.addWidget(m_find, 2);
    row.addWidget(m_findOutcome, 1);
}

QLayout* KeyLayout::makeFindRow()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(ui::spacing::controlGap);
    makeFind(*row);
    QPushButton* const store = makeFormButton(u"CSCmdBtn1"_s, u"&Save"_s, this);
    QPushButton* const leave = makeFormButton(u"CSCmdBtn2"_s, u"E&xit"_s, this);
    connect(store, &QPushButton::clicked, this, &KeyLayout::askAndSave);
    // Without any question: what is not saved is lost.
    connect(leave, &QPushButton::clicked, this, [this] { done(Rejected); });
    for (QPushButton* const button : {store, leave})
        button->setMinimumWidth(ui::buttonWidth); // in large type the legend needs the room
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
    connect(&m_model, &KeyGridModel::dropped, this, &KeyLayout::drop);
}

/// The grid's context menu.
void KeyLayout::addActions()
{
    addClipboardActions();
    addSeparator();
    addMarkActions();
    addSeparator();
    addFormActions();
}

void KeyLayout::addClipboardActions()
{
    addAction(u"Cut"_s, u"Cu&t"_s, {QKeySequence::Cut}, inGrid,
              [this] { finish(m_editor.cut(Grid1->chosenCells())); });
    addAction(u"Copy"_s, u"&Copy"_s, {QKeySequence::Copy}, inGrid, [this] {
        m_editor.copy(Grid1->chosenCells());
        showChanges();
        m_status->setNotice(u"Copied"_s);
    });
    m_paste = addAction(u"Paste"_s, u"&Paste"_s, {QKeySequence::Paste}, inGrid,
                        [this] { finish(m_editor.paste(Grid1->chosenCells())); });
    addAction(u"Clear"_s, u"C&lear"_s, {QKeySequence::Delete}, inGrid,
              [this] { finish(m_editor.clear(Grid1->chosenCells())); });
}

void KeyLayout::addMarkActions()
{
    addAction(u"Mark"_s, u"&Mark"_s, {u"Ctrl+M"_s}, inGrid, [this] {
        m_editor.mark(Grid1->chosenCells());
        m_model.refresh();
    });
    addAction(u"SwapWithMarked"_s, u"&Swap with marked key"_s, {u"Ctrl+E"_s}, inGrid,
              [this] { finish(m_editor.swapWithMarked(Grid1->chosenCells())); });
}

/// Also while the keyboard is in a list.
void KeyLayout::addFormActions()
{
    m_undo = addAction(u"Undo"_s, u"&Undo"_s, {QKeySequence(u"Ctrl+Z"_s)}, inForm, [this] {
        m_editor.undo();
        finish(Refusal::None);
    });
    m_redo = addAction(u"Redo"_s, u"&Redo"_s, {u"Ctrl+Y"_s, u"Ctrl+Shift+Z"_s}, inForm, [this] {
        m_editor.redo();
        finish(Refusal::None);
    });
    addSeparator();
    addAction(u"Find"_s, u"&Find"_s, {u"Ctrl+F"_s}, inForm, [this] {
        m_find->setFocus();
        m_find->selectAll();
    });
}

void KeyLayout::addSeparator()
{
    auto* const line = new QAction(this);
    line->setSeparator(true);
    Grid1->addAction(line);
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

} // namespace norvane::keys
