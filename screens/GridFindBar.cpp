// See GridFindBar.h.
#include "screens/GridFindBar.h"

#include "screens/GridControl.h"
#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QShortcut>

using namespace Qt::Literals::StringLiterals;

namespace norvane::screens
{
namespace
{

constexpr int boxWidth = 240;

} // namespace

GridFindBar::GridFindBar(GridControl& grid, QWidget* parent)
    : QWidget(parent), m_grid(grid), m_part(new QLineEdit(this)), m_outcome(new QLabel(this))
{
    ui::nameControl(*m_part, u"GridFind"_s);
    ui::nameControl(*m_outcome, u"GridFindOutcome"_s);
    m_part->setFixedWidth(ui::scaled(boxWidth));
    m_part->setClearButtonEnabled(true);
    m_part->setToolTip(u"Part of number or text; Enter goes to the next, the arrow down into the row"_s);
    auto* const label = new QLabel(u"&Find number or text:"_s, this);
    label->setBuddy(m_part);
    connect(m_part, &QLineEdit::textEdited, this, [this] { goOn(0); });
    connect(m_part, &QLineEdit::returnPressed, this, [this] { goOn(m_grid.currentIndex().row() + 1); });
    connect(new QShortcut(Qt::Key_Down, m_part, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
            &m_grid, &GridControl::enterRow);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(ui::spacing::controlGap, ui::spacing::controlGap, ui::spacing::controlGap, 0);
    row->setSpacing(ui::spacing::controlGap);
    row->addWidget(label);
    row->addWidget(m_part);
    row->addWidget(m_outcome, 1);
}

void GridFindBar::goOn(int fromRow)
{
    const bool found = m_part->text().isEmpty() || m_grid.findRow(m_part->text(), fromRow);
    m_outcome->setText(found ? QString() : u"No such row"_s);
    ui::announce(*m_outcome, m_outcome->text());
}

} // namespace norvane::screens
