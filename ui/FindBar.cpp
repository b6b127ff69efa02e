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

FindBar::FindBar(QWidget* parent) : QWidget(parent), m_text(new QLineEdit(this)), m_note(new QLabel(this))
{
    auto* const label = new QLabel(u"Find &text:"_s, this);
    auto* const next = makeButton(u"FindNextButton"_s, u"&Next"_s, this);
    auto* const previous = makeButton(u"FindPreviousButton"_s, u"P&revious"_s, this);
    label->setBuddy(m_text);
    nameControl(*m_text, u"FindText"_s);
    nameControl(*m_note, u"FindNote"_s);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(spacing::controlGap);
    for (QWidget* const control : std::initializer_list<QWidget*>{label, m_text, next, previous, m_note})
        row->addWidget(control, control == m_note ? 1 : 0);
    m_text->setMinimumWidth(scaled(220));
    connect(m_text, &QLineEdit::textEdited, this, [this] { Q_EMIT findWanted(0); });
    connect(m_text, &QLineEdit::returnPressed, this, [this] { Q_EMIT findWanted(1); });
    connect(next, &QPushButton::clicked, this, [this] { Q_EMIT findWanted(1); });
    connect(previous, &QPushButton::clicked, this, [this] { Q_EMIT findWanted(-1); });
}

void FindBar::open()
{
    show();
    m_text->setFocus(Qt::ShortcutFocusReason);
    m_text->selectAll();
}

void FindBar::setFound(bool isFound)
{
    m_note->setText(isFound || sought().isEmpty() ? QString() : u"Not found."_s);
    ui::announce(*m_note, m_note->text());
}

QString FindBar::sought() const
{
    return m_text->text();
}

} // namespace norvane::ui
