// See LevelRow.h.
#include "keys/layout/LevelRow.h"

#include "keys/KeyGeometry.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

constexpr int levelButtonWidth = 64;

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

QPushButton* makeFormButton(const QString& name, const QString& caption, QWidget* form)
{
    QPushButton* const button = ui::makeButton(name, caption, form);
    button->setAutoDefault(false);
    return button;
}

LevelRow::LevelRow(QWidget* parent)
    : QWidget(parent), Label1(makeHeading(u"Label1"_s, {}, this)),
      m_star(makeHeading(u"LevelChanged"_s, u"*"_s, this))
{
    m_star->setToolTip(u"This level differs from what is stored."_s);
    m_star->setMinimumWidth(m_star->sizeHint().width());
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(ui::spacing::controlGap);
    row->addWidget(Label1);
    row->addWidget(m_star);
    row->addSpacing(ui::spacing::groupGap);
    for (int level = 1; level <= levelCount; ++level)
        addLevelButton(level, *row);
    QPushButton* const copy = makeFormButton(u"CSCmdBtn8"_s, u"Copy Levels"_s, this);
    copy->setMinimumWidth(0); // in large type the row needs the room
    connect(copy, &QPushButton::clicked, this, &LevelRow::copyWanted);
    row->addSpacing(ui::spacing::groupGap);
    row->addWidget(copy);
    row->addStretch();
}

void LevelRow::addLevelButton(int level, QHBoxLayout& row)
{
    // CSCmdBtn3 is level 1.
    QPushButton* const button =
        makeFormButton(u"CSCmdBtn%1"_s.arg(level + 2), u"Level %1"_s.arg(level), this);
    button->setMinimumWidth(ui::scaled(levelButtonWidth));
    button->setCheckable(true);
    connect(button, &QPushButton::clicked, this, [this, level] { Q_EMIT levelWanted(level); });
    m_levels.push_back(button);
    row.addWidget(button);
}

void LevelRow::showLevel(const QString& name, int level)
{
    Label1->setText(name);
    for (std::size_t button = 0; button < m_levels.size(); ++button)
        m_levels[button]->setChecked(static_cast<int>(button) + 1 == level);
}

void LevelRow::addTools(QPushButton* button)
{
    button->setMinimumWidth(0);
    auto* const row = static_cast<QHBoxLayout*>(layout());
    row->insertWidget(row->count() - 1, button); // before the stretch
    setTabOrder(findChild<QPushButton*>(u"CSCmdBtn8"_s), button);
}

void LevelRow::showChanged(bool isChanged)
{
    m_star->setText(isChanged ? u"*"_s : QString());
}

} // namespace norvane::keys
