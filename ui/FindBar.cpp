// See FindBar.h.
#include "ui/FindBar.h"

#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace norvane::ui
{
namespace
{

constexpr int usualWidth = 220;

} // namespace

FindBar::FindBar(QWidget* parent)
    : FindBar({u"FindText"_s, u"Find &text:"_s, {}, usualWidth, usualWidth}, parent)
{
    m_text->setClearButtonEnabled(false);
    addButton(u"FindNextButton"_s, u"&Next"_s, 1);
    addButton(u"FindPreviousButton"_s, u"P&revious"_s, -1);
}

FindBar::FindBar(const FindBarParts& parts, QWidget* parent)
    : QWidget(parent), m_text(new QLineEdit(this)), m_outcome(new QLabel(this)), m_row(new QHBoxLayout(this))
{
    nameControl(*m_text, parts.name);
    nameControl(*m_outcome, parts.name + u"Outcome"_s);
    m_text->setMinimumWidth(scaled(parts.narrowest));
    m_text->setMaximumWidth(scaled(parts.widest));
    m_text->setClearButtonEnabled(true);
    m_text->setToolTip(parts.toolTip);
    auto* const label = new QLabel(parts.caption, this);
    label->setBuddy(m_text);
    m_row->setContentsMargins({});
    m_row->setSpacing(spacing::controlGap);
    m_row->addWidget(label);
    m_row->addWidget(m_text, 2);
    m_row->addWidget(m_outcome, 1);
    connect(m_text, &QLineEdit::textEdited, this, [this] { Q_EMIT findWanted(0); });
    connect(m_text, &QLineEdit::returnPressed, this, [this] { Q_EMIT findWanted(1); });
}

void FindBar::addButton(const QString& name, const QString& caption, int step)
{
    QPushButton* const button = makeButton(name, caption, this);
    m_row->insertWidget(m_row->indexOf(m_outcome), button);
    connect(button, &QPushButton::clicked, this, [this, step] { Q_EMIT findWanted(step); });
}

void FindBar::open()
{
    show();
    m_text->setFocus(Qt::ShortcutFocusReason);
    m_text->selectAll();
}

void FindBar::clear()
{
    m_text->clear();
    Q_EMIT findWanted(0);
}

QString FindBar::sought() const
{
    return m_text->text();
}

void FindBar::showOutcome(const QString& outcome)
{
    m_outcome->setText(outcome);
    announce(*m_outcome, outcome);
}

void FindBar::setFound(bool isFound)
{
    showOutcome(isFound || sought().isEmpty() ? QString() : u"Not found."_s);
}

QString FindBar::outcome() const
{
    return m_outcome->text();
}

} // namespace norvane::ui
