// See GridFindBar.h.
#include "screens/GridFindBar.h"

#include "screens/GridControl.h"
#include "ui/Appearance.h"

#include <QLayout>
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
    : FindBar({u"GridFind"_s, u"&Find number or text:"_s,
               u"Part of number or text; Enter goes to the next, the arrow down into the row"_s, boxWidth,
               boxWidth},
              parent),
      m_grid(grid)
{
    layout()->setContentsMargins(ui::spacing::controlGap, ui::spacing::controlGap, ui::spacing::controlGap,
                                 0);
    connect(this, &FindBar::findWanted, this, &GridFindBar::find);
    connect(new QShortcut(Qt::Key_Down, &box(), nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
            &m_grid, &GridControl::enterRow);
}

void GridFindBar::find(int step)
{
    const int from = step == 0 ? 0 : m_grid.currentIndex().row() + 1;
    const bool isFound = sought().isEmpty() || m_grid.findRow(sought(), from);
    showOutcome(isFound ? QString() : u"No such row"_s);
}

} // namespace norvane::screens
