// The parts of the keyboard layout editor, and what each of them sets off; see KeyLayout.h.
#include "keys/layout/KeyCellDelegate.h"
#include "keys/layout/KeyCommands.h"
#include "keys/layout/KeyFillBar.h"
#include "keys/layout/KeyGrid.h"
#include "keys/layout/KeyLayout.h"
#include "keys/layout/KeyListPanel.h"
#include "keys/layout/KeyViewRow.h"
#include "keys/layout/LevelRow.h"
#include "keys/layout/LevelTools.h"
#include "ui/Appearance.h"
#include "ui/FindBar.h"
#include "ui/StatusLine.h"
#include "ui/WrappingRow.h"

#include <QAction>
#include <QBoxLayout>
#include <QPushButton>
#include <QScrollBar>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr int narrowestFind = 80;
constexpr int widestFind = 180;

} // namespace

void KeyLayout::layOut()
{
    auto* const body = new QHBoxLayout;
    body->setSpacing(ui::spacing::groupGap);
    body->addWidget(Grid1, 1);
    body->addWidget(m_lists);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(ui::spacing::formMargin, ui::spacing::controlGap, ui::spacing::formMargin, 0);
    column->setSpacing(ui::spacing::controlGap);
    auto* const head = new ui::WrappingRow(ui::spacing::controlGap);
    head->addWidget(m_levels);
    head->addWidget(new KeyViewRow(m_commands->viewActions(), this));
    column->addLayout(head);
    column->addLayout(body, 1);
    column->addWidget(m_fill);
    column->addLayout(makeFindRow());
    column->addWidget(m_status);
}

QLayout* KeyLayout::makeFindRow()
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(ui::spacing::controlGap);
    m_find = new ui::FindBar({u"KeyFind"_s, u"&Find keys:"_s,
                              u"Marks the keys of this level with this text; Enter goes to the next"_s,
                              narrowestFind, widestFind},
                             this);
    row->addWidget(m_find, 1);
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
    connect(m_levels, &LevelRow::levelWanted, this, &KeyLayout::changeLevel);
    connect(m_levels, &LevelRow::copyWanted, this, &KeyLayout::copyLevels);
    connect(Grid1, &KeyGrid::entered, this, &KeyLayout::enterList);
    connect(Grid1, &KeyGrid::zoomChanged, this,
            [this] { m_status->setNotice(u"Zoom %1 %"_s.arg(Grid1->zoomPercent())); });
    connect(Grid1, &KeyGrid::currentCellChanged, this, &KeyLayout::showKey);
    connect(m_lists, &KeyListPanel::chosen, this, &KeyLayout::assign);
    connect(m_lists, &KeyListPanel::looked, this, &KeyLayout::showItem);
    connect(&m_commands->fill(), &QAction::toggled, this, &KeyLayout::showFill);
    connect(m_lists, &KeyListPanel::marksEntered, this, &KeyLayout::fillOrShowFill);
    connect(m_fill, &KeyFillBar::cancelled, this, [this] { m_commands->fill().setChecked(false); });
    connect(m_fill, &KeyFillBar::putWanted, this, &KeyLayout::fill);
    connect(m_find, &ui::FindBar::findWanted, this, &KeyLayout::goOnFinding);
    connect(&m_model, &KeyGridModel::dropped, this, &KeyLayout::drop);
}

void KeyLayout::addCommands()
{
    connect(m_commands, &KeyCommands::finished, this, &KeyLayout::finish);
    connect(m_commands, &KeyCommands::copied, this, [this] { m_status->setNotice(u"Copied"_s); });
    connect(m_commands, &KeyCommands::marked, &m_model, &KeyGridModel::refresh);
    connect(m_commands, &KeyCommands::findWanted, m_tools, &LevelTools::find);
    connect(&m_commands->lists(), &QAction::toggled, m_lists, &QWidget::setVisible);
    connect(&m_commands->lists(), &QAction::toggled, this, [this] { Grid1->setFocus(); });
}

void KeyLayout::addTools()
{
    m_tools = new LevelTools({m_level, m_editor, *Grid1, m_database, m_values, m_boxes, *this});
    m_levels->addTools(m_tools->menuButton());
    connect(m_tools, &LevelTools::placeWanted, this, &KeyLayout::goTo);
    connect(m_tools, &LevelTools::itemWanted, this, &KeyLayout::itemWanted);
    connect(m_tools, &LevelTools::changed, this, [this] { finish(Refusal::None); });
    connect(m_tools, &LevelTools::noticed, m_status, &ui::StatusLine::setNotice);
}

/// Keys open in their usual size. Where not all columns fit, the bar that scrolls gets room of its own.
void KeyLayout::fitScreen()
{
    QSize wanted = sizeHint();
    if (wanted.width() > ui::roomOnScreen(*this).width())
        wanted.rheight() += Grid1->horizontalScrollBar()->sizeHint().height();
    ui::centreOnScreen(*this, wanted);
}

} // namespace norvane::keys
