// See KeyFillBar.h.
#include "keys/layout/KeyFillBar.h"

#include "keys/layout/KeyGrid.h"
#include "keys/layout/KeyListPanel.h"
#include "keys/layout/LevelRow.h"
#include "ui/Announcement.h"
#include "ui/Appearance.h"
#include "ui/FormKit.h"
#include "ui/WrappingRow.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

namespace norvane::keys
{
namespace
{

QCheckBox* makeSwitch(const QString& name, const QString& caption, QWidget* bar)
{
    auto* const box = new QCheckBox(caption, bar);
    ui::nameControl(*box, name);
    box->setChecked(true);
    return box;
}

} // namespace

KeyFillBar::KeyFillBar(KeyLevel& level, KeyGrid& grid, KeyListPanel& lists, QWidget* parent)
    : QWidget(parent), m_level(level), m_grid(grid), m_lists(lists), m_text(new QLabel(this)),
      m_skipsUsed(makeSwitch(u"FillSkipsUsed"_s, u"Skip keys in &use"_s, this)),
      m_skipsPlaced(makeSwitch(u"FillSkipsPlaced"_s, u"Leave out what is on the &level"_s, this)),
      m_put(makeFormButton(u"FillPut"_s, u"&Put on Keys"_s, this))
{
    ui::nameControl(*m_text, u"FillText"_s);
    layOut();
    followChoices();
    hide();
}

void KeyFillBar::layOut()
{
    QPushButton* const cancel = makeFormButton(u"FillCancel"_s, u"&Cancel"_s, this);
    connect(m_put, &QPushButton::clicked, this, &KeyFillBar::put);
    connect(cancel, &QPushButton::clicked, this, &KeyFillBar::cancelled);
    auto* const row = new ui::WrappingRow(ui::spacing::controlGap, this);
    row->setContentsMargins({});
    for (QWidget* const control :
         std::initializer_list<QWidget*>{m_skipsUsed, m_skipsPlaced, m_put, cancel, m_text})
        row->addWidget(control);
    for (QWidget* const control : std::initializer_list<QWidget*>{m_skipsUsed, m_skipsPlaced, m_text})
        control->setMinimumHeight(m_put->sizeHint().height()); // one line with the buttons
}

void KeyFillBar::followChoices()
{
    connect(m_grid.selectionModel(), &QItemSelectionModel::selectionChanged, this, &KeyFillBar::showPreview);
    connect(&m_lists, &KeyListPanel::marksChanged, this, &KeyFillBar::showPreview);
    for (const QCheckBox* const box : {m_skipsUsed, m_skipsPlaced})
        connect(box, &QCheckBox::toggled, this, &KeyFillBar::showPreview);
}

/// The mouse marks keys instead of moving them: a block is what a fill needs.
void KeyFillBar::setOpen(bool isOpen)
{
    setVisible(isOpen);
    m_grid.setDragEnabled(!isOpen);
    m_lists.setMarking(isOpen);
    if (isOpen) {
        showPreview();
    } else {
        m_grid.showPreview({});
    }
}

FillWish KeyFillBar::wish() const
{
    const MarkedItems items = m_lists.marked(mostItems(m_level.geometry()));
    return {m_grid.chosenCells(),      items.kind, items.numbers, items.further, m_skipsUsed->isChecked(),
            m_skipsPlaced->isChecked()};
}

void KeyFillBar::showPreview()
{
    if (isHidden())
        return;
    const FillWish wished = wish();
    m_plan = planFill(m_level, wished);
    m_grid.showPreview(m_plan.keys);
    m_put->setEnabled(!m_plan.keys.empty());
    m_text->setText(wished.numbers.isEmpty() ? u"Mark entries in the list: a group, a filter, rows."_s
                                             : planText(m_plan));
    ui::announce(*m_text, m_text->text());
}

void KeyFillBar::put()
{
    if (!m_plan.keys.empty())
        Q_EMIT putWanted(FillPlan(m_plan));
}

} // namespace norvane::keys
